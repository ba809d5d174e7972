/**
 * @file qt_host.cpp
 * A host of the settings dialog with a QApplication of its own, in which the dialog runs.
 *
 * Its button "Settings" opens the dialog on the settings that this program keeps, as a child of the
 * active window; what comes of it is shown and printed.
 */
#include <kv_config_gui_mvc/companion_library.h>
#include <kv_config_gui_mvc/config_gui.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTextStream>
#include <QVBoxLayout>

#include <cstdlib>

namespace
{

/// Fills the record with the encoder's defaults. @return Why that was not possible; else nothing.
QString fillWithDefaults(KvMvcSettings& settings)
{
    const char* const names[] = {KV_MVC_ENCODER_LIBRARIES, nullptr};
    KvMvcLibrary encoder;
    if (!kvMvcOpenLibrary(&encoder, KV_MODULE_FOLDER, names, 0)) {
        return QString::fromUtf8(encoder.reason);
    }
    const auto defaults =
        reinterpret_cast<KvMvcDefaults>(kvMvcFindFunction(&encoder, KV_MVC_ENCODER_DEFAULTS));
    const bool filled = defaults && defaults(&settings, 0, KV_MVC_STEREO_HIGH, 0) == 0;
    kvMvcCloseLibrary(&encoder);
    return filled ? QString() : QStringLiteral("The encoder has no defaults.");
}

class HostWindow : public QWidget
{
public:
    explicit HostWindow(const KvMvcSettings& settings) : m_settings(settings)
    {
        auto* const settingsButton = new QPushButton(QStringLiteral("&Settings"));
        auto* const quitButton = new QPushButton(QStringLiteral("&Quit"));
        settingsButton->setObjectName(QStringLiteral("settingsButton"));
        quitButton->setObjectName(QStringLiteral("quitButton"));
        auto* const layout = new QVBoxLayout(this);
        for (QWidget* const widget :
             {static_cast<QWidget*>(m_text), // from the top
              static_cast<QWidget*>(settingsButton), static_cast<QWidget*>(quitButton)}) {
            layout->addWidget(widget);
        }
        connect(settingsButton, &QPushButton::clicked, this, &HostWindow::editSettings);
        connect(quitButton, &QPushButton::clicked, this, &QWidget::close);
        tell("settings");
    }

private:
    void editSettings()
    {
        // Returns when the dialog is closed; until then the events of all windows are handled.
        const int32_t result = showMVCEncoderPages(
            &m_settings,
            KV_MVC_GUI_BASIC_TAB | KV_MVC_GUI_ADVANCED_TAB | KV_MVC_GUI_FILE_BUTTONS |
                KV_MVC_GUI_LOG_COLOURS | KV_MVC_GUI_HOST_APPLICATION,
            qApp);
        tell(result == KV_MVC_GUI_ACCEPTED   ? "accepted"
             : result == KV_MVC_GUI_REJECTED ? "cancelled"
                                             : "the dialog could not be shown");
    }

    void tell(const char* what)
    {
        const KvMvcViewSettings& view = m_settings.views[0];
        m_text->setText(QStringLiteral("%1: %2 x %3, %4 frames/s")
                            .arg(QLatin1String(what))
                            .arg(view.width)
                            .arg(view.height)
                            .arg(double(view.frame_rate), 0, 'f', 3));
        QTextStream(stdout) << m_text->text() << '\n';
    }

    KvMvcSettings m_settings;
    QLabel* const m_text = new QLabel(this);
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    // In a host's application object the dialog's translations are looked for where the host says.
    QCoreApplication::addLibraryPath(QStringLiteral(KV_MODULE_FOLDER));
    KvMvcSettings settings = {};
    const QString reason = fillWithDefaults(settings);
    if (!reason.isEmpty()) {
        QTextStream(stderr) << "qt-host: " << reason << '\n';
        return EXIT_FAILURE;
    }
    HostWindow window(settings);
    window.setWindowTitle(QStringLiteral("Encoder"));
    window.show();
    return QApplication::exec();
}
