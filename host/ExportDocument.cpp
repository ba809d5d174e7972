// Prints docs/export.md: what becomes of each setting in an export.

#include "ExportTarget.h"

#include <cstdio>

namespace
{

/// A name as the document has it, with the place where it is not the target's usual one.
QString optionText(const ExportOption& option)
{
    QString name = QStringLiteral("`%1`").arg(option.name);
    switch (option.place) {
    case ExportPlace::Input:
        return name + QStringLiteral(" (input)");
    case ExportPlace::Filter:
        return QStringLiteral("`-vf %1`").arg(option.name);
    case ExportPlace::Parameter:
        return QStringLiteral("`-x264-params %1`").arg(option.name);
    case ExportPlace::Second:
        return name + QStringLiteral(" (second view)");
    case ExportPlace::Option:
    case ExportPlace::Main:
        break;
    }
    return name;
}

QString saidText(const ExportRow& row)
{
    QStringList said;
    for (const ExportOption& option : row.options) {
        said << optionText(option);
    }
    QStringList others;
    for (const char* const setting : row.saidWith) {
        others << QStringLiteral("`%1`").arg(QLatin1String(setting));
    }
    if (!others.isEmpty()) {
        said << QStringLiteral("with ") + others.join(QStringLiteral(", "));
    }
    return said.isEmpty() ? QStringLiteral("none") : said.join(QStringLiteral(", "));
}

QString limitText(const ExportRow& row)
{
    QStringList limits;
    for (const ExportLimit& limit : row.limits) {
        limits << QString::fromUtf8(limit.note);
    }
    return limits.join(QStringLiteral("; "));
}

QString targetText(const ExportTarget& target)
{
    QString text =
        QStringLiteral("\n## %1\n\n%2\n\n| setting | options | limits |\n|---|---|---|\n")
            .arg(QLatin1String(target.title), QLatin1String(target.description));
    for (const ExportEntry& entry : entriesOf(target.table())) {
        text += QStringLiteral("| `%1` | %2 | %3 |\n")
                    .arg(entry.setting->key, saidText(*entry.row), limitText(*entry.row));
    }
    return text;
}

} // namespace

int main()
{
    QString text = QStringLiteral("# Settings for other encoders\n\n"
                                  "<!-- Written by kv_export_doc; do not edit. -->\n\n"
                                  "What `kv-mvc-settings export` makes of each setting: the "
                                  "options that say it, or `none`. Of\n"
                                  "the limits those that the settings meet are told in notes on "
                                  "standard error. Settings that\n"
                                  "mean nothing beside others, such as quantizers beside a bit "
                                  "rate, are left out in silence.\n");
    for (const ExportTarget& target : exportTargets()) {
        text += targetText(target);
    }
    std::fputs(text.toUtf8().constData(), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
