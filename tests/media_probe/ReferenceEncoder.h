// Multiview streams by an encoder of another house: the standard's reference software, as far as it
// is there.
#pragma once

#include "MediaMaker.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace kvtest
{

/// Works with the folder that the environment variable KV_JM names: `lencod` and the configurations
/// `encoder_stereo.cfg` and `encoder_view1.cfg` that come with it.
class ReferenceEncoder
{
public:
    /// @param folder Where inputs and what the encoder leaves behind go.
    explicit ReferenceEncoder(const QString& folder) : m_folder(folder) {}

    static bool isThere() { return QFileInfo(tool("lencod")).isExecutable(); }
    /// Why a test is skipped without it.
    static const char* absence() { return "KV_JM names no folder with the reference encoder"; }

    /// Two views of 176 x 144 at 25 pictures a second, with blank-separated KEY=VALUE parameters
    /// over those of `encoder_stereo.cfg`.
    /// @return The stream; empty with a message when the encoder fails.
    QByteArray encode(const QString& parameters) const
    {
        constexpr int longestEncode = 120'000; // milliseconds, on a busy machine
        if (!makeInputs()) {
            return {};
        }
        QStringList arguments = {QStringLiteral("-d"), tool("encoder_stereo.cfg")};
        const QString all =
            QStringLiteral("InputFile=left.yuv View1ConfigFile=right.cfg OutputFile=out.264 "
                           "SourceWidth=176 SourceHeight=144 OutputWidth=176 OutputHeight=144 "
                           "FrameRate=25 LevelIDC=20 FramesToBeEncoded=9 NumberBFrames=0 "
                           "HierarchicalCoding=0 NumberReferenceFrames=2 SearchRange=16 ") +
            parameters;
        for (const QString& parameter : all.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            arguments << QStringLiteral("-p") << parameter;
        }
        QFile::remove(path("out.264"));
        QProcess process;
        process.setWorkingDirectory(m_folder);
        process.start(tool("lencod"), arguments);
        const bool finished = process.waitForFinished(longestEncode);
        QFile out(path("out.264"));
        if (!finished || process.exitCode() != 0 || !out.open(QIODevice::ReadOnly)) {
            qWarning("lencod failed: %s", process.readAllStandardError().constData());
            return {};
        }
        return out.readAll();
    }

private:
    static QString tool(const char* name)
    {
        return QDir(qEnvironmentVariable("KV_JM", QStringLiteral("/nonexistent")))
            .filePath(QLatin1String(name));
    }
    QString path(const char* name) const { return QDir(m_folder).filePath(QLatin1String(name)); }

    /// The right view looks past the left one's edge.
    bool makeInputs() const
    {
        if (QFileInfo::exists(path("right.cfg"))) {
            return true;
        }
        const QString raw = QStringLiteral("-f lavfi -i testsrc2=size=184x144:rate=25 -frames:v 50 "
                                           "-pix_fmt yuv420p -vf crop=176:144:%1:0");
        const QByteArray left = makeMedia(raw.arg(0), path("left.yuv"));
        const QByteArray right = makeMedia(raw.arg(8), path("right.yuv"));
        QFile second(tool("encoder_view1.cfg"));
        if (!left.isEmpty() || !right.isEmpty() || !second.open(QIODevice::ReadOnly)) {
            qWarning("no pictures to encode: %s%s", left.constData(), right.constData());
            return false;
        }
        QString settings = QString::fromUtf8(second.readAll());
        settings.replace(QRegularExpression(QStringLiteral("(?m)^InputFile .*$")),
                         QStringLiteral("InputFile = \"right.yuv\""));
        return writeFile(path("right.cfg"), settings.toUtf8());
    }

    QString m_folder;
};

} // namespace kvtest
