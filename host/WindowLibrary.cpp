#include "WindowPart.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

#include <type_traits>

namespace
{

class DialogLeaver : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Comes before a window is made.
        if (auto* const dialog = qobject_cast<QDialog*>(watched);
            dialog != nullptr && event->type() == QEvent::Polish) {
            dialog->setAttribute(Qt::WA_DontShowOnScreen);
            QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }
};

void installLeaver()
{
    QCoreApplication* const application = QCoreApplication::instance();
    application->installEventFilter(new DialogLeaver(application));
}

} // namespace

extern "C" Q_DECL_EXPORT QCoreApplication* kvMakeApplication(int* argc, char** argv)
{
    return new QApplication(*argc, argv);
}

extern "C" Q_DECL_EXPORT void kvLeaveDialogs()
{
    qAddPreRoutine(installLeaver);
}

static_assert(std::is_same_v<decltype(&kvMakeApplication), KvMakeApplication>);
static_assert(std::is_same_v<decltype(&kvLeaveDialogs), KvLeaveDialogs>);
