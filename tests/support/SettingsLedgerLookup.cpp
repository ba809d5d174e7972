#include "SettingsLedger.h"

#include <algorithm>
#include <cstring>

namespace ledger
{

namespace
{

constexpr int recordHead = 256;
constexpr int viewSize = 8316;

} // namespace

QString Setting::name() const
{
    if (title) {
        return QString::fromLatin1(title);
    }
    const QString text = QString::fromLatin1(caption).trimmed();
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1) : text;
}

QString Setting::keyOf(int ofView) const
{
    const QString text = QString::fromLatin1(key);
    return isOfEachView() ? QStringLiteral("%1 V%2").arg(text).arg(ofView) : text;
}

QString Setting::pageOf(int ofView) const
{
    const QString text = QString::fromLatin1(page);
    return isOfEachView() ? text.arg(ofView) : text;
}

int Setting::position(int ofView) const
{
    return isOfRecord() ? offset : recordHead + ofView * viewSize + offset;
}

const Setting& setting(const QString& member)
{
    const auto row =
        std::find_if(settings().begin(), settings().end(), [&member](const Setting& each) {
            return member == QLatin1String(each.member);
        });
    if (row == settings().end()) {
        qFatal("the ledger has no %s", qPrintable(member));
    }
    return *row;
}

QVector<Setting> viewNumbers()
{
    QVector<Setting> found;
    std::copy_if(
        settings().begin(), settings().end(), std::back_inserter(found),
        [](const Setting& each) { return !each.isOfRecord() && each.kind != Kind::FrameRate; });
    return found;
}

QVector<Setting> settingsOn(const char* page)
{
    QVector<Setting> found;
    std::copy_if(
        settings().begin(), settings().end(), std::back_inserter(found),
        [page](const Setting& each) { return each.page && std::strcmp(each.page, page) == 0; });
    return found;
}

QVector<NamedValue> listedValues(const QString& member)
{
    QVector<NamedValue> listed;
    for (const NamedValue& value : namedValues(member)) {
        if (value.isListed) {
            listed.append(value);
        }
    }
    return listed;
}

QStringList listedTexts(const QString& member)
{
    QStringList texts;
    for (const NamedValue& value : listedValues(member)) {
        texts += QString::fromLatin1(value.text);
    }
    return texts;
}

void put(KvMvcSettings& record, const Setting& setting, int ofView, double value)
{
    char* const field = reinterpret_cast<char*>(&record) + setting.position(ofView);
    if (setting.kind == Kind::FrameRate) {
        std::memcpy(field, &value, sizeof value);
    } else {
        const qint32 number = qint32(value);
        std::memcpy(field, &number, sizeof number);
    }
}

double get(const KvMvcSettings& record, const Setting& setting, int ofView)
{
    const char* const field = reinterpret_cast<const char*>(&record) + setting.position(ofView);
    double rate = 0;
    qint32 number = 0;
    if (setting.kind == Kind::FrameRate) {
        std::memcpy(&rate, field, sizeof rate);
        return rate;
    }
    std::memcpy(&number, field, sizeof number);
    return number;
}

} // namespace ledger
