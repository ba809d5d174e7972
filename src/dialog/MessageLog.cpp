#include "MessageLog.h"

#include "Companions.h"
#include "ForeignText.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>

#include <kv_config_gui_mvc/companion_check.h>

#include <cstdarg>
#include <cstdlib>
#include <memory>

namespace
{

QByteArray formatted(const char* format, va_list arguments)
{
    const std::unique_ptr<char, void (*)(void*)> text(kvMvcFormatMessage(format, arguments),
                                                      &std::free);
    return text ? QByteArray(text.get()) : QByteArray(format);
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

/// The message's format in the user's language; the format itself where there is none.
const char* localized(const char* format)
{
    const auto convert = companionFunctions().localizeConvert;
    const char* converted = nullptr;
    if (convert) {
        thrownBy(KV_MVC_LOCALIZE_CONVERT, [&] { converted = convert(format); });
    }
    return converted ? converted : format;
}

void takeText(QString& buffer, QMessageBox::Icon icon, const QString& text)
{
    const QString message = text + QLatin1Char('\n');
    const QTextEdit* log = messageLog().widget;
    if (log && log->isHidden()) {
        showBox(icon, message);
    } else {
        buffer += message;
    }
}

void take(QString& buffer, QMessageBox::Icon icon, const char* format, va_list arguments)
{
    try {
        takeText(buffer, icon, foreignText(formatted(localized(format), arguments)));
    } catch (...) {
        // The encoder is between here and whoever could take it: rather is a message lost.
    }
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

QString firstLine(const QString& messages)
{
    return messages.section(QLatin1Char('\n'), 0, 0);
}

/// The state of the paragraph that the errors begin with.
constexpr int errorsBegin = 1;

/// The first error, else the first message: what there is to do comes before what there is to know.
QTextBlock firstToRead(const QTextEdit* log)
{
    QTextBlock first = log->document()->begin();
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        if (block.text().isEmpty()) {
            continue;
        }
        if (block.userState() == errorsBegin) {
            return block;
        }
        if (first.text().isEmpty()) {
            first = block;
        }
    }
    return first;
}

void scrollToFirstToRead(QTextEdit* log)
{
    // From below, so that it becomes the topmost line.
    log->moveCursor(QTextCursor::End);
    log->setTextCursor(QTextCursor(firstToRead(log)));
}

/// What does not fit a line goes on under the message, not under its beginning.
QTextBlockFormat hangingIndent()
{
    constexpr int indent = 12;
    QTextBlockFormat format;
    format.setLeftMargin(indent);
    format.setTextIndent(-indent);
    return format;
}

/// Lightens what is behind the messages: a skin's background may end dark, where red is hard to
/// read.
void layVeil(QTextDocument* document)
{
    QTextFrameFormat format = document->rootFrame()->frameFormat();
    format.setBackground(QColor(255, 255, 255, 100));
    document->rootFrame()->setFrameFormat(format);
}

} // namespace

MessageLog& messageLog()
{
    static MessageLog log;
    return log;
}

void MessageLog::showIn(QTextEdit* log)
{
    widget = log;
    shownFirst.clear();
    layVeil(log->document());
}

void MessageLog::clearMessages()
{
    for (QString* messages : {&errors, &warnings, &notes}) {
        messages->clear();
    }
}

void MessageLog::addError(const QString& text)
{
    takeText(errors, QMessageBox::Critical, text);
}

void MessageLog::dropDistinctColours()
{
    errorColour = noteColour;
    warningColour = noteColour;
}

void MessageLog::rewriteWidget()
{
    if (!widget) {
        return;
    }
    const QString first = firstLine(errors.isEmpty() ? warnings : errors);
    const bool keepsItsPlace = widget->isVisible() && first == shownFirst;
    const int place = widget->verticalScrollBar()->value();
    shownFirst = first;
    const struct {
        const QString& messages;
        const QColor& colour;
        int state;
    } blocks[] = {
        {warnings, warningColour, -1}, {errors, errorColour, errorsBegin}, {notes, noteColour, -1}};
    const QTextBlockFormat paragraph = hangingIndent();

    widget->clear();
    layVeil(widget->document());
    QTextCursor cursor(widget->document());
    cursor.beginEditBlock();
    cursor.setBlockFormat(paragraph);
    for (const auto& block : blocks) {
        QTextCharFormat format;
        format.setForeground(block.colour);
        if (&block != blocks) {
            cursor.insertBlock(paragraph, format);
        }
        QTextBlock first = cursor.block();
        cursor.insertText(block.messages, format);
        first.setUserState(block.state);
    }
    cursor.endEditBlock();

    scrollToFirstToRead(widget);
    if (keepsItsPlace) {
        widget->verticalScrollBar()->setValue(place);
    }
    // Before it is shown the log does not know yet how much of the text it has room for.
    if (!widget->isVisible()) {
        QMetaObject::invokeMethod(
            widget, [log = widget.data()] { scrollToFirstToRead(log); }, Qt::QueuedConnection);
    }
}

void MessageLog::pointOutError() const
{
    if (!widget || !widget->isVisible()) {
        return;
    }
    widget->setFocus();
    const QTextBlock block = firstToRead(widget);
    QTextCursor cursor(block);
    if (block.userState() == errorsBegin) {
        // Backwards, so that its beginning is what is scrolled to.
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.setPosition(block.position(), QTextCursor::KeepAnchor);
    }
    widget->setTextCursor(cursor);
}

KvMvcFunction lookUpCheckFunction(const char* name)
{
    const KvMvcSinks sinks = {&printError, &printWarning, &printNote, &printProgress};
    return kvMvcLookUpIn(&sinks, name);
}
