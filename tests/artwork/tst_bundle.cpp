#include "Contrast.h"
#include "ToolkitWarnings.h"

#include <QDirIterator>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QResource>
#include <QTest>

namespace
{

const QStringList iconNames = {
    QStringLiteral("cancel"), QStringLiteral("down"), QStringLiteral("load"),
    QStringLiteral("minus"),  QStringLiteral("next"), QStringLiteral("ok"),
    QStringLiteral("plus"),   QStringLiteral("prev"), QStringLiteral("restore"),
    QStringLiteral("right"),  QStringLiteral("save"), QStringLiteral("up"),
};

// What the metal skin shows of a control that cannot be used, or not that way.
const QStringList greyIconNames = {
    QStringLiteral("down-off"), QStringLiteral("minus-off"), QStringLiteral("ok-off"),
    QStringLiteral("plus-off"), QStringLiteral("up-off"),
};

QString iconPath(const QString& name, const QString& density = QString())
{
    return QStringLiteral(":/res_mvc/icons/%1%2.png").arg(name, density);
}

/// The file's bytes as they were before the bundle compressed them.
QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The compiled-in bundle: what is in it, how it is stored, and how its pictures are drawn.
class TestBundle : public QObject
{
    Q_OBJECT

public:
    // A dense screen for the whole program, so that the toolkit has a choice to make.
    static void initMain()
    {
        qputenv("QT_SCALE_FACTOR", "3");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    }

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void everyPathOpens_data();
    void everyPathOpens();
    void holdsNothingElse();
    void pictureComesInThreeDensities_data();
    void pictureComesInThreeDensities();
    void toolkitPicksTheDenseIcon_data();
    void toolkitPicksTheDenseIcon();
    void onlyMetalIsCompressed();
    void metalIsStandardZlib();
    void iconStandsOutOnLightGrounds_data();
    void iconStandsOutOnLightGrounds();
    void greyIconIsTheOtherOnePaler_data();
    void greyIconIsTheOtherOnePaler();
    void backgroundTilesWithoutSeams_data();
    void backgroundTilesWithoutSeams();
};

void TestBundle::everyPathOpens_data()
{
    QTest::addColumn<QString>("path");

    for (const char* path :
         {":/res_mvc/icons/restore.png", ":/res_mvc/icons/load.png", ":/res_mvc/icons/save.png",
          ":/res_mvc/icons/ok.png", ":/res_mvc/icons/cancel.png", ":/res_mvc/icons/down.png",
          ":/res_mvc/icons/up.png", ":/res_mvc/icons/prev.png", ":/res_mvc/icons/next.png",
          ":/res_mvc/icons/right.png", ":/res_mvc/icons/plus.png", ":/res_mvc/icons/minus.png",
          ":/res_mvc/backgrounds/main.png", ":/res_mvc/backgrounds/box.png",
          ":/res_mvc/banners/banner.png", ":/res_mvc/skins/default.qss",
          ":/res_mvc/skins/metal.qss"}) {
        QTest::newRow(path) << QString::fromLatin1(path);
    }
}

void TestBundle::everyPathOpens()
{
    QFETCH(QString, path);

    QVERIFY(!contents(path).isEmpty());
    if (path.endsWith(QLatin1String(".png"))) {
        QVERIFY(!QImage(path).isNull());
    }
}

// A file that nobody names would be carried by every host in vain.
void TestBundle::holdsNothingElse()
{
    int files = 0;
    for (QDirIterator it(QStringLiteral(":/res_mvc"), QDir::Files, QDirIterator::Subdirectories);
         it.hasNext(); it.next()) {
        ++files;
    }
    QCOMPARE(files, 20 * 3 + 2);
}

void TestBundle::pictureComesInThreeDensities_data()
{
    QTest::addColumn<QString>("stem");
    QTest::addColumn<QSize>("size");

    for (const QString& name : iconNames + greyIconNames) {
        QTest::newRow(qPrintable(name)) << QStringLiteral("icons/") + name << QSize(16, 16);
    }
    QTest::newRow("banner") << QStringLiteral("banners/banner") << QSize(380, 74);
    QTest::newRow("main") << QStringLiteral("backgrounds/main") << QSize(200, 100);
    QTest::newRow("box") << QStringLiteral("backgrounds/box") << QSize(200, 100);
}

void TestBundle::pictureComesInThreeDensities()
{
    QFETCH(QString, stem);
    QFETCH(QSize, size);

    const QString path = QStringLiteral(":/res_mvc/%1%2.png");
    QCOMPARE(QImage(path.arg(stem, QString())).size(), size);
    QCOMPARE(QImage(path.arg(stem, QStringLiteral("@2x"))).size(), 2 * size);
    QCOMPARE(QImage(path.arg(stem, QStringLiteral("@3x"))).size(), 3 * size);
}

void TestBundle::toolkitPicksTheDenseIcon_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : iconNames) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestBundle::toolkitPicksTheDenseIcon()
{
    QFETCH(QString, name);

    const QPixmap picked = QIcon(iconPath(name)).pixmap(QSize(16, 16));
    QCOMPARE(picked.size(), QSize(48, 48));
    QCOMPARE(picked.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
             QImage(iconPath(name, QStringLiteral("@3x")))
                 .convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void TestBundle::onlyMetalIsCompressed()
{
    for (QDirIterator it(QStringLiteral(":/res_mvc"), QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString path = it.next();
        const auto expected = path == QLatin1String(":/res_mvc/skins/metal.qss")
                                  ? QResource::ZlibCompression
                                  : QResource::NoCompression;
        QVERIFY2(QResource(path).compressionAlgorithm() == expected, qPrintable(path));
    }
}

void TestBundle::metalIsStandardZlib()
{
    const QResource metal(QStringLiteral(":/res_mvc/skins/metal.qss"));
    const QByteArray stored(reinterpret_cast<const char*>(metal.data()), int(metal.size()));

    // Four bytes of length, then the stream: method 8 (deflate), and a header divisible by 31.
    QVERIFY(stored.size() > 6);
    const uint method = uchar(stored[4]);
    const uint flags = uchar(stored[5]);
    QCOMPARE(method & 0x0fU, 8U);
    QCOMPARE((method * 256U + flags) % 31U, 0U);
    QVERIFY(stored.size() < contents(metal.absoluteFilePath()).size());
    QCOMPARE(qUncompress(stored), contents(metal.absoluteFilePath()));
}

void TestBundle::iconStandsOutOnLightGrounds_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& name : iconNames) {
        for (const char* density : {"", "@2x", "@3x"}) {
            QTest::newRow(qPrintable(name + QLatin1String(density)))
                << iconPath(name, QString::fromLatin1(density));
        }
    }
}

void TestBundle::iconStandsOutOnLightGrounds()
{
    QFETCH(QString, path);

    // White, the metal skin's button, and the usual one of the toolkit, which is checked, pressed.
    // On dark ones the dialog lightens them.
    const QColor grounds[] = {QColor(255, 255, 255), QColor(233, 235, 238), QColor(219, 219, 219),
                              QColor(200, 200, 200)};
    const QImage icon(path);
    int opaque = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const QColor pixel = icon.pixelColor(x, y);
            if (pixel.alpha() < 255) {
                continue;
            }
            ++opaque;
            for (const QColor& ground : grounds) {
                const double ratio = contrast(pixel, ground);
                QVERIFY2(ratio >= 3.0, qPrintable(QStringLiteral("%1 on %2: %3")
                                                      .arg(pixel.name(), ground.name())
                                                      .arg(ratio)));
            }
        }
    }
    // On the pixel grid: solid strokes, not only softened edges.
    QVERIFY2(32 * opaque >= icon.width() * icon.height(), qPrintable(QString::number(opaque)));
}

void TestBundle::greyIconIsTheOtherOnePaler_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : greyIconNames) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestBundle::greyIconIsTheOtherOnePaler()
{
    QFETCH(QString, name);
    const QImage grey(iconPath(name));
    const QImage icon(iconPath(name.chopped(4)));
    const QColor ground(251, 251, 252);
    int opaque = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            QCOMPARE(grey.pixelColor(x, y).alpha(), icon.pixelColor(x, y).alpha());
            if (icon.pixelColor(x, y).alpha() < 255) {
                continue;
            }
            ++opaque;
            QVERIFY(grey.pixelColor(x, y).hslSaturation() < 30);
            QVERIFY(contrast(grey.pixelColor(x, y), ground) <
                    contrast(icon.pixelColor(x, y), ground) - 0.5);
        }
    }
    QVERIFY(opaque > 0);
}

void TestBundle::backgroundTilesWithoutSeams_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("main") << QStringLiteral(":/res_mvc/backgrounds/main.png");
    QTest::newRow("box") << QStringLiteral(":/res_mvc/backgrounds/box.png");
}

void TestBundle::backgroundTilesWithoutSeams()
{
    QFETCH(QString, path);

    // Along the brush, neighbours differ little; so must the last column and the first.
    const QImage tile(path);
    const auto step = [&tile](int left, int right) {
        int sum = 0;
        for (int y = 0; y < tile.height(); ++y) {
            sum += qAbs(qGray(tile.pixel(left, y)) - qGray(tile.pixel(right, y)));
        }
        return sum;
    };
    int worst = 0;
    for (int x = 1; x < tile.width(); ++x) {
        worst = qMax(worst, step(x - 1, x));
    }
    QVERIFY(worst > 0);
    QVERIFY(step(tile.width() - 1, 0) <= worst);
}

QTEST_MAIN(TestBundle)

#include "tst_bundle.moc"
