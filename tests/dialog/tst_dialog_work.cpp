// What an edit makes the toolkit do: paints and layouts, counted.

#include "DialogTest.h"
#include "UserInput.h"

#include <QApplication>
#include <QCheckBox>
#include <QSpinBox>
#include <QTest>

namespace
{

/// Counts the events that widgets of a dialog get.
class EventCount : public QObject
{
public:
    explicit EventCount(const QWidget* window) : m_window(window)
    {
        qApp->installEventFilter(this);
        // What came before is done first; an event may post another.
        constexpr int mostRounds = 100;
        for (int i = 0; i < mostRounds; ++i) {
            m_painted.clear();
            m_laidOut.clear();
            constexpr int pause = 20;
            QTest::qWait(pause);
            if (m_painted.isEmpty() && m_laidOut.isEmpty()) {
                break;
            }
        }
    }

    /// Also those that are still to come.
    QString painted()
    {
        QApplication::processEvents();
        return m_painted.join(QLatin1String(", "));
    }
    QString laidOut()
    {
        QApplication::processEvents();
        return m_laidOut.join(QLatin1String(", "));
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const widget = qobject_cast<QWidget*>(watched);
        if (widget && widget->window() == m_window) {
            const QString name = QLatin1String(widget->metaObject()->className()) +
                                 QLatin1Char(' ') + widget->objectName();
            if (event->type() == QEvent::Paint) {
                m_painted += name;
            } else if (event->type() == QEvent::LayoutRequest) {
                m_laidOut += name;
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    const QWidget* const m_window;
    QStringList m_painted;
    QStringList m_laidOut;
};

KvMvcSettings filmOfTwoViews()
{
    KvMvcSettings settings = {};
    settings.num_views = 2;
    for (KvMvcViewSettings& view : settings.views) {
        view.width = 1920;
        view.height = 1080;
        view.frame_rate = 25;
        view.bitrate_mode = KV_MVC_VARIABLE_BITRATE;
        view.bitrate = 20'000'000;
        view.max_bitrate = 40'000'000;
        view.bit_depth_luma = 8;
        view.bit_depth_chroma = 8;
        view.hrd_mode = 1;
    }
    return settings;
}

int threeMessages(KvMvcLookup lookUp, KvMvcSettings&)
{
    print(lookUp, "wrn_printf", "a warning");
    print(lookUp, "err_printf", "an error");
    print(lookUp, "inf_printf", "a note");
    return 1;
}

/// The messages tell the width.
int messageOfWidth(KvMvcLookup lookUp, KvMvcSettings& settings)
{
    print(lookUp, "wrn_printf", "width %d", settings.views[0].width);
    return 0;
}

ConfigState widthOf(int width)
{
    ConfigState state;
    state.insert(QStringLiteral("Horizontal Size"), width);
    return state;
}

} // namespace

class TestDialogWork : public QObject
{
    Q_OBJECT

private:
    /// A dialog that is shown, with a tab in front, and that has been edited before.
    struct Shown : OpenDialog {
        explicit Shown(int tab, int (*check)(KvMvcLookup, KvMvcSettings&) = threeMessages)
            : OpenDialog(usualFlags, filmOfTwoViews())
        {
            companions.onCheck = check;
            tabs()->setCurrentIndex(tab);
            get()->show();
            QVERIFY(QTest::qWaitForWindowExposed(get()));
            get()->slotReceiveState(widthOf(1280));
            get()->slotReceiveState(widthOf(1920));
        }
    };

private Q_SLOTS:
    // A cursor that blinks is painted.
    void initTestCase() { QApplication::setCursorFlashTime(0); }

    void anEditThatChangesNothingPaintsNothing_data()
    {
        QTest::addColumn<int>("tab");
        QTest::newRow("basic settings") << 0;
        QTest::newRow("advanced settings") << 1;
        QTest::newRow("views") << 2;
    }

    void anEditThatChangesNothingPaintsNothing()
    {
        QFETCH(const int, tab);
        const Shown dialog(tab);
        EventCount count(dialog.get());
        dialog->slotReceiveState(widthOf(1920));
        QCOMPARE(count.painted(), QString());
        QCOMPARE(count.laidOut(), QString());
    }

    void anEditOnAnotherTabPaintsNothing()
    {
        const Shown dialog(2);
        EventCount count(dialog.get());
        dialog->slotReceiveState(widthOf(1280));
        QCOMPARE(count.painted(), QString());
        QCOMPARE(on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin")->value(), 1280);
    }

    /// A field, and what stands in it; the rest of the page stays as it was painted.
    void anEditPaintsWhatItChanges()
    {
        const Shown dialog(0);
        EventCount count(dialog.get());
        on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin")->setValue(1280);
        const QString painted = count.painted();
        QVERIFY(painted.contains(QStringLiteral("QSpinBox widthSpin")));
        QVERIFY(!painted.contains(QStringLiteral("QSpinBox heightSpin")));
        QVERIFY(!painted.contains(QStringLiteral("QComboBox framerateList")));
        QCOMPARE(count.laidOut(), QString());
    }

    void otherMessagesPaintTheLogAlone()
    {
        const Shown dialog(2, messageOfWidth);
        EventCount count(dialog.get());
        dialog->slotReceiveState(widthOf(1280));
        QCOMPARE(dialog.log()->toPlainText().trimmed(), QStringLiteral("width 1280"));
        const QString painted = count.painted();
        QCOMPARE(painted, QStringLiteral("QWidget qt_scrollarea_viewport"));
    }

    /// What a user is typing is replaced by what the field has, also where that is the number from
    /// before.
    void textThatIsTypedGivesWay()
    {
        const Shown dialog(0);
        auto* const width = on<QSpinBox>(dialog, "VideoFormatPage", "widthSpin");
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, QStringLiteral("72"));
        QCOMPARE(width->text(), QStringLiteral("72"));
        QCOMPARE(width->value(), 1920);
        ConfigState state;
        state.insert(QStringLiteral("Slices"), 2);
        dialog->slotReceiveState(state);
        QCOMPARE(width->text(), QStringLiteral("1920"));
    }
};

QTEST_MAIN(TestDialogWork)
#include "tst_dialog_work.moc"
