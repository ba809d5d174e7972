#include "AllPages.h"
#include "Controls.h"
#include "ToolkitWarnings.h"

#include "model/Vocabulary.h"

#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <memory>

/// Texts in another language: each is asked for in its context, and what a state carries is found
/// in the lists.
class TestPageTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failOnToolkitWarnings(); }

    void textIsAskedForInItsContext_data();
    void textIsAskedForInItsContext();
    void windowTitleIsAskedForInTheLayoutsContext_data();
    void windowTitleIsAskedForInTheLayoutsContext();
    void sectionTitleIsAskedForInThePagesContext_data();
    void sectionTitleIsAskedForInThePagesContext();
    void everyListTextIsFound_data();
    void everyListTextIsFound();
    void visibilityFollowsTheTranslatedMode();
    void modeOfAStateIsAskedForInTheCommonContext_data();
    void modeOfAStateIsAskedForInTheCommonContext();
    void unitLabelsAreAskedForInThePagesContext_data();
    void unitLabelsAreAskedForInThePagesContext();
};

namespace
{

/// Puts the context before each text, or the same mark before all.
class Translator : public QTranslator
{
public:
    explicit Translator(bool withContext) : m_withContext(withContext)
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QString::fromUtf8(m_withContext ? context : "ü") + QLatin1Char('|') +
               QLatin1String(source);
    }

private:
    bool m_withContext;
};

QString textOf(const QWidget* widget)
{
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
        return list->itemText(0);
    }
    return widget->property("text").toString();
}

} // namespace

Q_DECLARE_METATYPE(ListName)

void TestPageTexts::textIsAskedForInItsContext_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const auto row = [](const QString& page, const char* name, const QString& text) {
        QTest::addRow("%s of %s", qPrintable(text), name)
            << page << QString(QLatin1String(name)) << text;
    };
    const auto other = [&row](const char* page, const char* name, const char* text) {
        row(QString::fromLatin1(page), name, QString::fromLatin1(text));
    };
    other("BasicPage", "deviceLabel", "IBasicPage|CUDA Devices:");
    other("VideoFormatPage", "aspectRatioCheck", "IVideoFormatPage|Keep aspect ratio");
    other("VideoFormatPage", "aspectRatioList", "VideoFormatPage|Custom");
    other("VideoFormatPage", "framerateList", "VideoFormatPage|7.60");
    other("GOPStructurePage", "label_2", "IGOPStructurePage|I-frame as IDR.");
    for (const ledger::Setting& setting : ledger::settings()) {
        // The presets are the dialog's own; profiles and levels are its names, too.
        if (!setting.key || setting.is("video_type")) {
            continue;
        }
        const QString member = QString::fromLatin1(setting.member);
        for (int view = 0; view < setting.viewCount(); ++view) {
            const QString page = setting.pageOf(view);
            if (setting.caption) {
                row(page, setting.label ? setting.label : setting.control,
                    QStringLiteral("I%1|%2").arg(page, QLatin1String(setting.caption)));
            }
            if (setting.kind == ledger::Kind::List && !setting.is("profile") &&
                !setting.is("level")) {
                row(page, setting.control,
                    page + QLatin1Char('|') + ledger::listedTexts(member).first());
            }
        }
    }
}

void TestPageTexts::textIsAskedForInItsContext()
{
    QFETCH(QString, page);
    QFETCH(QString, name);
    const Translator translator(true);
    AllPages pages;
    const QWidget* const widget = findOnPage(pages.window(), page, name);
    QVERIFY(widget);
    const QString text = textOf(widget);
    QTEST(text, "text");
}

void TestPageTexts::windowTitleIsAskedForInTheLayoutsContext_data()
{
    QTest::addColumn<QString>("title");
    const auto row = [](const char* page, const char* title) {
        QTest::newRow(page) << QString(QLatin1String(title));
    };
    row("BasicPage", "IBasicPage|Basic Page");
    row("MiscPage", "IMiscPage|Miscallaneous Page");
    row("View0Page", "IView0Page|View1 Page");
    row("View1Page", "IView1Page|View1 Page");
    row("View2Page", "IView2Page|View2 Page");
    row("View3Page", "IView3Page|View3 Page");
}

void TestPageTexts::windowTitleIsAskedForInTheLayoutsContext()
{
    const Translator translator(true);
    AllPages pages;
    QStringList titles;
    for (const QFrame* page : pages.window()->findChildren<QFrame*>()) {
        if (page->inherits(QTest::currentDataTag())) {
            titles += page->windowTitle();
        }
    }
    QCOMPARE(titles.size(), 1);
    QTEST(titles.first(), "title");
}

void TestPageTexts::sectionTitleIsAskedForInThePagesContext_data()
{
    QTest::addColumn<QString>("title");
    for (const char* title :
         {"BasicPage|Video Format", "AdvancedPage|GOP Structure", "AdvancedPage|Motion Estimation",
          "AdvancedPage|Rate Distortion", "AdvancedPage|Miscellaneous", "ViewsPage|Base View",
          "ViewsPage|View 1", "ViewsPage|View 2", "ViewsPage|View 3"}) {
        QTest::newRow(title) << QString(QLatin1String(title));
    }
}

void TestPageTexts::sectionTitleIsAskedForInThePagesContext()
{
    QFETCH(QString, title);
    const Translator translator(true);
    AllPages pages;
    int found = 0;
    for (const QLabel* label : pages.window()->findChildren<QLabel*>()) {
        if (label->text() == title) {
            ++found;
        }
    }
    QCOMPARE(found, 1);
}

void TestPageTexts::everyListTextIsFound_data()
{
    QTest::addColumn<bool>("translated");
    QTest::addColumn<QString>("key");
    QTest::addColumn<ListName>("list");
    for (const bool translated : {false, true}) {
        const auto row = [translated](const char* key, ListName list) {
            QTest::newRow(qPrintable(QStringLiteral("%1, %2").arg(
                QLatin1String(key), QLatin1String(translated ? "translated" : "English"))))
                << translated << QString(QLatin1String(key)) << list;
        };
        row("Interlace", ListName::InterlaceModes);
        row("Field Order", ListName::FieldOrders);
        row("Pulldown", ListName::PulldownModes);
        row("Chroma Format", ListName::ChromaFormats);
        row("Bit-depth Luma", ListName::BitDepths);
        row("Bit-depth Chroma", ListName::BitDepths);
        row("Macroblock Search", ListName::MacroblockPartitions);
        row("Subpixel Search", ListName::SubpixelPrecisions);
        row("Entropy", ListName::EntropyCoders);
        row("Profile", ListName::Profiles);
        row("Level", ListName::Levels);
        for (const char* key :
             {"Bitrate Mode V0", "Bitrate Mode V1", "Bitrate Mode V2", "Bitrate Mode V3"}) {
            row(key, ListName::BitrateModes);
        }
    }
}

void TestPageTexts::everyListTextIsFound()
{
    QFETCH(bool, translated);
    QFETCH(QString, key);
    QFETCH(ListName, list);
    std::unique_ptr<Translator> translator;
    if (translated) {
        translator = std::make_unique<Translator>(false);
    }
    const Vocabulary vocabulary;
    AllPages pages;
    pages.advanced->setProfileLevelLists(vocabulary.profiles(), vocabulary.levels());

    const auto control = std::find_if(controls().begin(), controls().end(),
                                      [&key](const Control& each) { return each.key == key; });
    QVERIFY(control != controls().end());
    for (const ItemList::Item& item : vocabulary.list(list).items()) {
        ConfigState state;
        state.insert(key, item.text);
        pages.receive(state);
        // The unnamed chroma format is the one that shows no item.
        QCOMPARE(shown(pages.window(), *control), QVariant(item.text));
    }
    QVERIFY(vocabulary.list(list).items().size() > 1);
}

void TestPageTexts::visibilityFollowsTheTranslatedMode()
{
    const Translator translator(false);
    AllPages pages;
    QVERIFY(pages.show());
    pages.window()->setCurrentWidget(pages.views);
    ConfigState state;
    state.insert(QStringLiteral("Bitrate Mode V0"), QStringLiteral("ü|Variable Bitrate"));
    state.insert(QStringLiteral("HRD V0"), 1);
    pages.receive(state);
    const QString page = QStringLiteral("View0Page");
    QVERIFY(findOnPage(pages.window(), page, QStringLiteral("maxRateSpin"))->isVisible());
    QVERIFY(!findOnPage(pages.window(), page, QStringLiteral("quantISpin"))->isVisible());
    state.insert(QStringLiteral("Bitrate Mode V0"), QStringLiteral("Variable Bitrate"));
    pages.receive(state);
    QVERIFY(!findOnPage(pages.window(), page, QStringLiteral("maxRateSpin"))->isVisible());
}

void TestPageTexts::modeOfAStateIsAskedForInTheCommonContext_data()
{
    QTest::addColumn<QStringList>("visible");
    QTest::newRow("QObject|Constant Bitrate") << lines({"targetRateSpin", "iSizeSpin"});
    QTest::newRow("QObject|Variable Bitrate")
        << lines({"targetRateSpin", "maxRateSpin", "iSizeSpin"});
    QTest::newRow("QObject|Const. Quality - Constant Quantizer") << lines({"quantISpin"});
    QTest::newRow("QObject|Const. Quality - Average Quantizer")
        << lines({"iSizeSpin", "quantISpin"});
    // As the list has it, whose items are no part of a state.
    QTest::newRow("View0Page|Variable Bitrate") << lines({"iSizeSpin"});
}

void TestPageTexts::modeOfAStateIsAskedForInTheCommonContext()
{
    const Translator translator(true);
    AllPages pages;
    QVERIFY(pages.show());
    pages.window()->setCurrentWidget(pages.views);
    ConfigState state;
    state.insert(QStringLiteral("Bitrate Mode V0"), QString::fromLatin1(QTest::currentDataTag()));
    state.insert(QStringLiteral("HRD V0"), 1);
    pages.receive(state);
    QStringList visible;
    for (const char* name : {"targetRateSpin", "maxRateSpin", "iSizeSpin", "quantISpin"}) {
        if (findOnPage(pages.window(), QStringLiteral("View0Page"), QLatin1String(name))
                ->isVisible()) {
            visible += QLatin1String(name);
        }
    }
    QTEST(visible, "visible");
}

void TestPageTexts::unitLabelsAreAskedForInThePagesContext_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<int>("units");
    QTest::addColumn<QStringList>("labels");
    for (int view = 0; view < 4; ++view) {
        const auto row = [view](int units, std::initializer_list<const char*> texts) {
            QStringList labels;
            for (const char* text : texts) {
                labels += QStringLiteral("View%1Page|").arg(view) + QLatin1String(text);
            }
            QTest::addRow("view %d, units %d", view, units) << view << units << labels;
        };
        row(0, {"Bitrate buffer (bytes)", "VBV buffer initial (%)", "VBV buffer target (%)"});
        row(1, {"Bitrate buffer (bits)", "VBV buffer initial (bits)", "VBV buffer target (bits)"});
        row(2,
            {"Bitrate buffer (bits)", "VBV buffer initial (90 kHz)", "VBV buffer target (90 kHz)"});
    }
}

void TestPageTexts::unitLabelsAreAskedForInThePagesContext()
{
    QFETCH(int, view);
    QFETCH(int, units);
    const Translator translator(true);
    AllPages pages;
    ConfigState state;
    state.insert(QStringLiteral("Units V%1").arg(view), units);
    pages.receive(state);
    QStringList labels;
    for (const char* name : {"bitrateBufferLabel", "vbvInitialLabel", "vbvTargetLabel"}) {
        labels += textOf(findOnPage(pages.window(), QStringLiteral("View%1Page").arg(view),
                                    QLatin1String(name)));
    }
    QTEST(labels, "labels");
}

QTEST_MAIN(TestPageTexts)
#include "tst_page_texts.moc"
