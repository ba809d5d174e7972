// Settings on their way through another encoder and back.
#pragma once

#include "ExportCases.h"
#include "HostProgram.h"
#include "SettingsLedger.h"

#include "../media_probe/MediaMaker.h"
#include "../settings_io/EncoderLibrary.h"
#include "../settings_io/SettingsLibrary.h"

#include <QRegularExpression>
#include <QTest>

#include <span>

Q_DECLARE_METATYPE(const ExportCase*)

namespace kvtest
{

/// "name=value name=value", in all views; a value is a number or a ratio.
inline void setAll(const char* text, KvMvcSettings& settings)
{
    for (const QString& entry :
         QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QStringList value = entry.section(QLatin1Char('='), 1).split(QLatin1Char('/'));
        const double number =
            value.constFirst().toDouble() / (value.size() > 1 ? value.constLast().toDouble() : 1);
        const ledger::Setting& setting = ledger::setting(entry.section(QLatin1Char('='), 0, 0));
        for (int view = 0; view < (setting.isOfRecord() ? 1 : KV_MVC_RECORD_VIEWS); ++view) {
            ledger::put(settings, setting, view, number);
        }
    }
}

/// Where the imported settings are not what a stream is to tell: "name: 1, not 2".
/// @param told As of ExportCase, over nothing.
inline QString wrongSettings(const QString& told, const KvMvcSettings& set, int setView,
                             const KvMvcSettings& imported, int importedView)
{
    QMap<QString, QString> expected;
    for (const QString& entry : told.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (entry.startsWith(QLatin1Char('-'))) {
            expected.remove(entry.mid(1));
        } else {
            expected[entry.section(QLatin1Char('='), 0, 0)] = entry.section(QLatin1Char('='), 1);
        }
    }
    QStringList wrong;
    for (auto entry = expected.begin(); entry != expected.end(); ++entry) {
        const ledger::Setting& setting = ledger::setting(entry.key());
        const double value =
            entry.value().isEmpty() ? ledger::get(set, setting, setView) : entry.value().toDouble();
        const double got = ledger::get(imported, setting, importedView);
        if (got != value) {
            wrong << QStringLiteral("%1: %2, not %3").arg(entry.key()).arg(got).arg(value);
        }
    }
    return wrong.join(QStringLiteral("; "));
}

/// A row of the test's data for each.
inline void addRows(std::span<const ExportCase> cases)
{
    for (const ExportCase& row : cases) {
        QTest::newRow(row.name) << &row;
    }
}

/// Moving pictures in the format of the settings, but always at 25 a second.
/// @param file Its suffix is "yuv" or "y4m".
/// @param shift How far to the right the view looks, up to 8 samples.
/// @return What failed.
inline QString makePictures(const KvMvcViewSettings& view, const QString& file,
                            const ExportCase& row, int shift = 0)
{
    const QString chroma = QLatin1String(view.chroma_format == KV_MVC_CHROMA_400   ? "gray"
                                         : view.chroma_format == KV_MVC_CHROMA_422 ? "yuv422p"
                                                                                   : "yuv420p");
    const QString depth = QLatin1String(view.bit_depth_luma > 8 ? "10le" : "");
    const QString change = row.sceneChange > 0
                               ? QStringLiteral(",negate=enable=gte(n\\,%1)").arg(row.sceneChange)
                               : QString();
    // YUV4MPEG2 of deep samples is no standard.
    const QString arguments =
        QStringLiteral("-f lavfi -i testsrc=size=%1x%2:rate=25,crop=%3:%2:%4:0%5 -frames:v %6 "
                       "-pix_fmt %7 -strict -1 ")
            .arg(view.width + 8)
            .arg(view.height)
            .arg(view.width)
            .arg(shift)
            .arg(change)
            .arg(row.frames)
            .arg(chroma + depth);
    const bool isRaw = file.endsWith(QLatin1String(".yuv"));
    return QString::fromUtf8(
        makeMedia(arguments + QLatin1String(isRaw ? "-f rawvideo" : ""), file));
}

class RealEncode
{
public:
    /// Exports a case's settings, runs the command in a shell, has ffprobe decode the stream, and
    /// imports it.
    /// @param target As of --to.
    /// @param suffix Of the input: "yuv" or "y4m".
    /// @return What failed, or what the stream tells otherwise; empty when all is right.
    QString roundTrip(const ExportCase& row, const char* target, const char* suffix, int view = 0)
    {
        KvMvcSettings settings = EncoderLibrary().defaults(row.preset);
        setAll(setByAll, settings);
        setAll(row.set, settings);
        m_program.writeSettings(QStringLiteral("settings.cfg"), settings);
        const QString input = QStringLiteral("input.") + QLatin1String(suffix);
        QFile::remove(m_program.path(stream));
        QString failure = makePictures(settings.views[0], m_program.path(input), row);
        if (failure.isEmpty()) {
            failure = encode(target, input, view);
        }
        if (failure.isEmpty()) {
            failure = decode(row.frames);
        }
        KvMvcSettings imported{};
        SettingsLibrary library;
        if (failure.isEmpty() && library.read(imported, m_program.path(stream).toUtf8()) != 0) {
            failure = QString::fromUtf8(library.messages);
        }
        const QString told = QLatin1String(toldByAll) + QLatin1Char(' ') + QLatin1String(row.told);
        return failure.isEmpty() ? wrongSettings(told, settings, view, imported, 0) : failure;
    }

    /// The numbers of the I-frames in the last stream, as they are shown.
    QString iFrames() const
    {
        QStringList frames;
        int number = 0;
        const QString said =
            probe({QStringLiteral("-show_entries"), QStringLiteral("frame=pict_type")});
        for (const QString& line : said.split(QLatin1Char('\n'))) {
            const bool isFrame =
                QRegularExpression(QStringLiteral("^[IPB]")).match(line).hasMatch();
            if (line.startsWith(QLatin1Char('I'))) {
                frames << QString::number(number);
            }
            number += isFrame ? 1 : 0; // further lines are of side data
        }
        return frames.join(QLatin1Char(' '));
    }

private:
    /// What ffprobe says, and complains of.
    QString probe(const QStringList& entries) const
    {
        QProcess probe;
        probe.start(QStringLiteral("ffprobe"),
                    QStringList{QStringLiteral("-v"), QStringLiteral("error"),
                                QStringLiteral("-of"), QStringLiteral("csv=p=0")} +
                        entries + QStringList{m_program.path(stream)});
        probe.waitForFinished();
        return QString::fromUtf8(probe.readAllStandardError() + probe.readAllStandardOutput())
            .trimmed();
    }

    QString encode(const char* target, const QString& input, int view) const
    {
        const HostProgram::Result exported = m_program.run(
            {QStringLiteral("export"), QStringLiteral("--to"), QLatin1String(target),
             QStringLiteral("--input"), input, QStringLiteral("--stream"), stream,
             QStringLiteral("--view"), QString::number(view), QStringLiteral("settings.cfg")});
        if (exported.exitCode != 0) {
            return exported.error;
        }
        const HostProgram::Result encoded = m_program.runScript(exported.output);
        return encoded.exitCode == 0 ? QString() : exported.output + encoded.error;
    }

    QString decode(int frames) const
    {
        const QString said =
            probe({QStringLiteral("-count_frames"), QStringLiteral("-show_entries"),
                   QStringLiteral("stream=nb_read_frames")});
        return said == QString::number(frames) ? QString() : QStringLiteral("ffprobe: ") + said;
    }

    const QString stream = QStringLiteral("out.264");
    HostProgram m_program;
};

} // namespace kvtest
