#include "Announcement.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QWidget>

namespace
{

/// What was said last. The toolkit's bridge to AT-SPI drops alerts, but tells that an object of
/// this role is shown now, which screen readers say.
class Notice : public QObject
{
public:
    explicit Notice(QWidget* about);
    ~Notice() override { QAccessible::deleteAccessibleInterface(m_id); }

    void say(const QString& text);
    const QString& text() const { return m_text; }

private:
    QAccessible::Id m_id;
    QString m_text;
};

class NoticeInterface : public QAccessibleObject
{
public:
    explicit NoticeInterface(Notice* notice) : QAccessibleObject(notice), m_notice(notice) {}

    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_notice->parent());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_notice->text() : QString();
    }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

private:
    const Notice* const m_notice;
};

Notice::Notice(QWidget* about)
    : QObject(about), m_id(QAccessible::registerAccessibleInterface(new NoticeInterface(this)))
{
}

void Notice::say(const QString& text)
{
    m_text = text;
    QAccessibleEvent shown(QAccessible::accessibleInterface(m_id), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

Notice* noticeOf(QWidget* about)
{
    const auto children = about->children();
    for (QObject* child : children) {
        if (auto* const notice = dynamic_cast<Notice*>(child)) {
            return notice;
        }
    }
    return new Notice(about);
}

} // namespace

void announce(QWidget* about, const QString& text)
{
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleEvent alert(about, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    noticeOf(about)->say(text);
}
