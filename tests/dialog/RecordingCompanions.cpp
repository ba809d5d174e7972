#include "RecordingCompanions.h"

#include <qtestassert.h>

#include <algorithm>

namespace
{

RecordingCompanions* current = nullptr;

int32_t defaults(KvMvcSettings* settings, int32_t reserved1, int32_t preset, int32_t reserved2)
{
    current->calls += QStringLiteral("defaults %1 %2 %3").arg(reserved1).arg(preset).arg(reserved2);
    if (current->onDefaults) {
        current->onDefaults(*settings, preset);
    }
    return 0;
}

int32_t check(KvMvcLookup lookUp, KvMvcSettings* settings, int32_t stage, int32_t reserved)
{
    current->calls += QStringLiteral("check %1 %2").arg(stage).arg(reserved);
    current->checkedAt = settings;
    // A copy: it may put another in its place.
    const auto onCheck = current->onCheck;
    return onCheck ? onCheck(lookUp, *settings) : 0;
}

int32_t read(KvMvcSettings* settings, const char* path)
{
    current->calls += QLatin1String("read ") + QString::fromUtf8(path);
    current->receivedByReader += bytesOf(*settings);
    return current->onRead ? current->onRead(*settings) : 1;
}

int32_t write(KvMvcSettings* settings, const char* path)
{
    current->calls += QLatin1String("write ") + QString::fromUtf8(path);
    current->written += bytesOf(*settings);
    current->writtenFrom = settings;
    if (current->onWrite) {
        current->onWrite();
    }
    return current->writeResult;
}

KvMvcFunction getApi(int32_t code)
{
    current->calls += QStringLiteral("api %1").arg(code);
    if (current->onGetApi) {
        current->onGetApi();
    }
    if (code == 8193 && current->hasReader) {
        return reinterpret_cast<KvMvcFunction>(&read);
    }
    if (code == 8194 && current->hasWriter) {
        return reinterpret_cast<KvMvcFunction>(&write);
    }
    return nullptr;
}

} // namespace

RecordingCompanions::RecordingCompanions()
{
    QTEST_ASSERT(!current);
    current = this;
    companionFunctions() = {&defaults, &check, &getApi, nullptr};
}

RecordingCompanions::~RecordingCompanions()
{
    current = nullptr;
    companionFunctions() = {};
}

int RecordingCompanions::count(const QString& beginning) const
{
    return int(std::count_if(calls.begin(), calls.end(),
                             [&](const QString& call) { return call.startsWith(beginning); }));
}

QByteArray bytesOf(const KvMvcSettings& settings)
{
    return {reinterpret_cast<const char*>(&settings), int(sizeof settings)};
}
