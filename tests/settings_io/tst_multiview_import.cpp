// Settings from multiview streams that the standard's reference encoder made.
#include "EncoderLibrary.h"
#include "SettingsLibrary.h"

#include "../media_probe/ReferenceEncoder.h"

#include <QTemporaryDir>
#include <QTest>

using kvtest::ReferenceEncoder;
using kvtest::SettingsLibrary;

namespace
{

class TestMultiviewImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theProfileChoosesThePreset_data();
    void theProfileChoosesThePreset();

private:
    QTemporaryDir m_folder;
    SettingsLibrary m_library;
};

void TestMultiviewImport::initTestCase()
{
    QVERIFY(m_library.isLoaded());
    if (!kvtest::hasFfmpeg()) {
        QSKIP("the ffmpeg program makes the media of this test");
    }
    if (!ReferenceEncoder::isThere()) {
        QSKIP(ReferenceEncoder::absence());
    }
}

void TestMultiviewImport::theProfileChoosesThePreset_data()
{
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<int>("preset");
    QTest::newRow("Stereo High") << QStringLiteral("ProfileIDC=128") << int(KV_MVC_STEREO_HIGH);
    QTest::newRow("Multiview High")
        << QStringLiteral("ProfileIDC=118") << int(KV_MVC_MULTIVIEW_HIGH);
}

void TestMultiviewImport::theProfileChoosesThePreset()
{
    QFETCH(QString, parameters);
    QFETCH(int, preset);
    const QByteArray stream = ReferenceEncoder(m_folder.path()).encode(parameters);
    QVERIFY(!stream.isEmpty());
    const QString name = m_folder.filePath(QStringLiteral("views.264"));
    QVERIFY(kvtest::writeFile(name, stream));
    KvMvcSettings settings{};
    QVERIFY2(m_library.read(settings, name.toUtf8()) == 0, m_library.messages.constData());
    QCOMPARE(kvtest::EncoderLibrary().complaintsOf(settings), QByteArray());
    QCOMPARE(settings.num_views, 2);
    for (const KvMvcViewSettings& view : settings.views) {
        QCOMPARE(view.video_type, preset);
        QCOMPARE(view.profile, int(KV_MVC_PROFILE_HIGH));
        QCOMPARE(view.level, 20);
        QCOMPARE(view.width, 176);
        QCOMPARE(view.height, 144);
        QCOMPARE(view.num_ref_frames, 2);
    }
}

} // namespace

QTEST_GUILESS_MAIN(TestMultiviewImport)
#include "tst_multiview_import.moc"
