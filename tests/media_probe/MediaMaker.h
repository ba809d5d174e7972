// Media files made by the ffmpeg program, and what ffprobe says of them.
#pragma once

#include "BitWriter.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>

namespace kvtest
{

inline bool hasFfmpeg()
{
    return !QStandardPaths::findExecutable(QStringLiteral("ffmpeg")).isEmpty() &&
           !QStandardPaths::findExecutable(QStringLiteral("ffprobe")).isEmpty();
}

/// Runs ffmpeg with blank-separated arguments and the file's name; the error text, or nothing.
inline QByteArray makeMedia(const QString& arguments, const QString& file)
{
    QProcess process;
    QStringList list = {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-y")};
    list += arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    process.start(QStringLiteral("ffmpeg"), list << file);
    const bool finished = process.waitForFinished(60000);
    const bool good = finished && process.exitStatus() == QProcess::NormalExit &&
                      process.exitCode() == 0 && QFile(file).size() > 0;
    return good ? QByteArray() : "ffmpeg failed: " + process.readAllStandardError();
}

/// Whether the file could be written.
inline bool writeFile(const QString& name, const QByteArray& content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The first video stream in ffprobe's words.
inline QJsonObject probeMedia(const QString& file)
{
    QProcess process;
    process.start(QStringLiteral("ffprobe"),
                  {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
                   QStringLiteral("v:0"), QStringLiteral("-show_streams"), QStringLiteral("-of"),
                   QStringLiteral("json"), file});
    process.waitForFinished(30000);
    const QJsonDocument document = QJsonDocument::fromJson(process.readAllStandardOutput());
    return document.object().value(QStringLiteral("streams")).toArray().at(0).toObject();
}

/// The arguments of a test picture of so many seconds.
inline QString picture(const char* size, const char* rate, double seconds = 1)
{
    return QStringLiteral("-f lavfi -i testsrc=size=%1:rate=%2 -t %3 ")
        .arg(QLatin1String(size), QLatin1String(rate))
        .arg(seconds);
}

/// Splits a stream at its start codes; each unit without them.
inline QList<QByteArray> nalUnits(const QByteArray& stream)
{
    QList<QByteArray> units;
    const QByteArray code("\0\0\1", 3);
    for (auto at = stream.indexOf(code); at >= 0;) {
        const auto next = stream.indexOf(code, at + 3);
        QByteArray unit = stream.mid(at + 3, next < 0 ? -1 : next - at - 3);
        while (unit.endsWith('\0')) {
            unit.chop(1);
        }
        units.append(unit);
        at = next;
    }
    return units;
}

/// A stream of several views: the base view's stream with a subset parameter set before each access
/// unit's slices and `views` - 1 slices of further views, each `weight` times the base view's
/// slice.
inline QByteArray withViews(const QByteArray& base, int profile, int level, int views,
                            double weight = 1)
{
    QByteArray stream;
    for (const QByteArray& unit : nalUnits(base)) {
        const int type = unit.isEmpty() ? 0 : unit[0] & 31;
        stream += QByteArray("\0\0\0\1", 4) + unit;
        if (type == 8) {
            stream += subsetParameterSet(profile, level, static_cast<uint32_t>(views));
        }
        if (type != 1 && type != 5) {
            continue;
        }
        for (int view = 1; view < views; ++view) {
            stream += nalUnit(2, 20, QByteArray(int(unit.size() * weight), '\x55'));
        }
    }
    return stream;
}

} // namespace kvtest
