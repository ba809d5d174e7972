#pragma once

#include "dialog/Companions.h"

#include <QByteArray>
#include <QStringList>

#include <functional>

/// The companion functions of the process while it lives: functions that write down every call and
/// answer as a test says. One at a time.
class RecordingCompanions
{
public:
    RecordingCompanions();
    RecordingCompanions(const RecordingCompanions&) = delete;
    RecordingCompanions& operator=(const RecordingCompanions&) = delete;
    ~RecordingCompanions();

    /// Every call with its numbers and names, in order: "defaults 0 2 0", "check 3 0", "api 8193",
    /// "read NAME", "write NAME".
    QStringList calls;
    /// How many calls begin so.
    int count(const QString& beginning) const;

    /// What the check does, and its result; without one it accepts everything.
    std::function<int(KvMvcLookup, KvMvcSettings&)> onCheck;
    /// What the defaults of a preset are; without one the record stays.
    std::function<void(KvMvcSettings&, int preset)> onDefaults;
    /// What the reader does, and its result; without one it fails.
    std::function<int(KvMvcSettings&)> onRead;
    /// What the writer and the library's one export do besides.
    std::function<void()> onWrite;
    std::function<void()> onGetApi;
    bool hasReader = true;
    bool hasWriter = true;

    /// The records that the reader was called with, as they were then, and that the writer got.
    QList<QByteArray> receivedByReader;
    QList<QByteArray> written;
    /// Where the records of the last check and the last write lay.
    const void* checkedAt = nullptr;
    const void* writtenFrom = nullptr;
    /// What the writer returns.
    int writeResult = 0;
};

/// The bytes of a record.
QByteArray bytesOf(const KvMvcSettings& settings);

/// Prints through the sinks of a check.
template <class... Arguments>
void print(KvMvcLookup lookUp, const char* sink, const char* format, Arguments... arguments)
{
    reinterpret_cast<KvMvcPrintf>(lookUp(sink))(format, arguments...);
}
