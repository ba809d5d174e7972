#include "FindBox.h"

#include "SettingControls.h"
#include "TipWrap.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace
{

constexpr int noMatch = -1;

/// "Bit-depth" is found by "bit depth", too.
QString plain(QString text)
{
    return text.replace(QLatin1Char('-'), QLatin1Char(' ')).simplified();
}

/// How far down the list an entry comes: 0 where its text begins with what is typed.
int rankOf(const FindBox::Entry& entry, const QString& typed)
{
    if (plain(entry.text).startsWith(typed, Qt::CaseInsensitive)) {
        return 0;
    }
    int rank = 1;
    for (const QString& words : entry.words) {
        if (plain(words).contains(typed, Qt::CaseInsensitive)) {
            return rank;
        }
        ++rank;
    }
    // Word by word, each of them somewhere.
    const QString all = plain(entry.words.join(QLatin1Char('\n')));
    const QStringList parts = typed.split(QLatin1Char(' '));
    const bool hasAll = std::all_of(parts.begin(), parts.end(), [&](const QString& part) {
        return all.contains(part, Qt::CaseInsensitive);
    });
    return hasAll ? rank : noMatch;
}

} // namespace

FindBox::FindBox(QWidget* parent, const Texts& texts, const QVector<Entry>& entries)
    : QFrame(parent, Qt::Popup),
      m_texts(texts),
      m_entries(entries),
      m_field(new QLineEdit(this)),
      m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("findBox"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Raised));
    // Above the background that a skin gives to dialogs and their children.
    setAutoFillBackground(true);
    setWindowTitle(texts.title);
    setAccessibleName(texts.title);

    m_field->setObjectName(QStringLiteral("findField"));
    m_field->setPlaceholderText(texts.title);
    m_field->setAccessibleName(texts.title);
    m_field->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("findList"));
    m_list->setAccessibleName(texts.title);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setWordWrap(true);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_field);
    layout->addWidget(m_list);
    setFocusProxy(m_field);

    connect(m_field, &QLineEdit::textChanged, this, &FindBox::narrow);
    connect(m_field, &QLineEdit::returnPressed, this, &FindBox::goToChosen);
    connect(m_list, &QListWidget::itemClicked, this, &FindBox::goToChosen);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        // The focus stays where is typed: that is where the choice is heard of.
        m_field->setAccessibleDescription(row < 0 ? QString() : m_list->item(row)->text());
    });
    narrow({});
}

void FindBox::openOver(const QWidget* place)
{
    setGeometry(QRect(place->mapToGlobal(QPoint()), place->size()));
    show();
    m_field->setFocus(Qt::PopupFocusReason);
}

bool FindBox::eventFilter(QObject* watched, QEvent* event)
{
    // What moves in a list does so while the focus is where is typed.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
            key == Qt::Key_PageDown) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void FindBox::narrow(const QString& typed)
{
    struct Match {
        int rank;
        int entry;
    };
    QVector<Match> matches;
    const QString wanted = plain(typed);
    for (int i = 0; i < int(m_entries.size()); ++i) {
        const int rank = wanted.isEmpty() ? 0 : rankOf(m_entries[i], wanted);
        if (rank != noMatch) {
            matches += {rank, i};
        }
    }
    std::stable_sort(matches.begin(), matches.end(),
                     [](const Match& a, const Match& b) { return a.rank < b.rank; });

    m_list->clear();
    m_shown.clear();
    for (const Match& match : std::as_const(matches)) {
        const Entry& entry = m_entries[match.entry];
        auto* const item = new QListWidgetItem(entry.text, m_list);
        item->setToolTip(wrappedTip(entry.tip));
        m_shown += match.entry;
    }
    if (m_shown.isEmpty()) {
        (new QListWidgetItem(m_texts.nothing, m_list))->setFlags(Qt::NoItemFlags);
        return;
    }
    m_list->setCurrentRow(0);
}

void FindBox::goToChosen()
{
    const int row = m_list->currentRow();
    if (row < 0 || row >= int(m_shown.size())) {
        return;
    }
    const QPointer<QWidget> control = m_entries[m_shown[row]].control;
    close();
    if (control) {
        setting_controls::goTo(control);
    }
}
