#include "Trace.h"

#include <QLoggingCategory>

#include <cstdio>

namespace
{

const QLoggingCategory& category()
{
    static const QLoggingCategory log("kv.config_gui_mvc", QtWarningMsg);
    return log;
}

bool goesToStandardError()
{
    const QByteArray wish = qgetenv("KV_CONFIG_GUI_TRACE");
    return !wish.isEmpty() && wish != "0";
}

bool isPlain(QChar character)
{
    const auto kind = character.category();
    return kind != QChar::Other_Control && kind != QChar::Other_Format &&
           kind != QChar::Separator_Line && kind != QChar::Separator_Paragraph;
}

QString inOneLine(const QString& text)
{
    QString line;
    for (const QChar character : text) {
        if (isPlain(character)) {
            line += character;
        } else {
            line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return line;
}

} // namespace

namespace trace
{

bool isOn()
{
    return goesToStandardError() || category().isDebugEnabled();
}

void write(const QString& line)
{
    const QByteArray text = inOneLine(line).toUtf8();
    if (goesToStandardError()) {
        // Not by way of the toolkit, whose messages a host may have sent elsewhere.
        std::fprintf(stderr, "kv_config_gui_mvc: %s\n", text.constData());
        std::fflush(stderr);
    }
    qCDebug(category, "%s", text.constData());
}

} // namespace trace
