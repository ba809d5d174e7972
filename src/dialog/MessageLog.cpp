#include "MessageLog.h"

#include "Companions.h"
#include "ForeignText.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QTextBlock>
#include <QTextCursor>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

QByteArray formatted(const char* format, va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    if (length < 0)
        return format;
    QByteArray message(length + 1, Qt::Uninitialized);
    std::vsnprintf(message.data(), size_t(message.size()), format, arguments);
    message.chop(1);
    return message;
}

void showBox(QMessageBox::Icon icon, const QString& message)
{
    // On the heap and watched: its parent may go while the box is open.
    const QPointer<QMessageBox> box = new QMessageBox(
        icon, QCoreApplication::translate("AVCVideoEncoderDlg", "Korvane MVC Video Encoder"),
        message, QMessageBox::Ok, messageLog().widget->parentWidget());
    box->setTextFormat(Qt::PlainText);
    // The skins size every push button for an icon.
    box->setStyleSheet(QStringLiteral("QPushButton { min-width: 5em; max-width: 20em;"
                                      " min-height: 1.5em; max-height: 3em; }"));
    box->exec();
    delete box;
}

void take(QString& buffer, QMessageBox::Icon icon, const char* format, va_list arguments)
{
    const CompanionFunctions& functions = companionFunctions();
    const char* localized = functions.localizeConvert ? functions.localizeConvert(format) : nullptr;
    const QString message =
        foreignText(formatted(localized ? localized : format, arguments)) + QLatin1Char('\n');
    const QTextEdit* log = messageLog().widget;
    if (log && log->isHidden())
        showBox(icon, message);
    else
        buffer += message;
}

int printError(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    take(messageLog().errors, QMessageBox::Critical, format, arguments);
    va_end(arguments);
    return 0;
}

int printWarning(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    take(messageLog().warnings, QMessageBox::Warning, format, arguments);
    va_end(arguments);
    return 0;
}

int printNote(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    take(messageLog().notes, QMessageBox::Information, format, arguments);
    va_end(arguments);
    return 0;
}

int printProgress(const char*, ...)
{
    return 0;
}

/// Past the empty paragraphs before it.
void scrollToFirstMessage(QTextEdit* log)
{
    QTextBlock first = log->document()->begin();
    while (first.next().isValid() && first.text().isEmpty())
        first = first.next();
    log->moveCursor(QTextCursor::End);
    log->setTextCursor(QTextCursor(first));
}

} // namespace

MessageLog& messageLog()
{
    static MessageLog log;
    return log;
}

void MessageLog::clearMessages()
{
    for (QString* messages : {&errors, &warnings, &notes})
        messages->clear();
}

void MessageLog::dropDistinctColours()
{
    errorColour = noteColour;
    warningColour = noteColour;
}

void MessageLog::rewriteWidget() const
{
    if (!widget)
        return;
    const struct {
        const QString& messages;
        const QColor& colour;
    } blocks[] = {{warnings, warningColour}, {errors, errorColour}, {notes, noteColour}};

    widget->clear();
    QTextCursor cursor(widget->document());
    cursor.beginEditBlock();
    for (const auto& block : blocks) {
        QTextCharFormat format;
        format.setForeground(block.colour);
        if (&block != blocks)
            cursor.insertBlock(QTextBlockFormat(), format);
        cursor.insertText(block.messages, format);
    }
    cursor.endEditBlock();

    scrollToFirstMessage(widget);
    // Before it is shown the log does not know yet how much of the text it has room for.
    if (!widget->isVisible())
        QMetaObject::invokeMethod(
            widget, [log = widget.data()] { scrollToFirstMessage(log); }, Qt::QueuedConnection);
}

KvMvcFunction lookUpCheckFunction(const char* name)
{
    const struct {
        const char* name;
        KvMvcFunction function;
    } rows[] = {
        {"malloc", reinterpret_cast<KvMvcFunction>(&std::malloc)},
        {"free", reinterpret_cast<KvMvcFunction>(&std::free)},
        {"err_printf", reinterpret_cast<KvMvcFunction>(&printError)},
        {"prg_printf", reinterpret_cast<KvMvcFunction>(&printProgress)},
        {"wrn_printf", reinterpret_cast<KvMvcFunction>(&printWarning)},
        {"inf_printf", reinterpret_cast<KvMvcFunction>(&printNote)},
    };
    for (const auto& row : rows)
        if (name && std::strcmp(name, row.name) == 0)
            return row.function;
    return nullptr;
}
