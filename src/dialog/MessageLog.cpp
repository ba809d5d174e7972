#include "MessageLog.h"

#include "Announcement.h"
#include "Companions.h"
#include "DigitGroups.h"
#include "ForeignText.h"
#include "LogGround.h"
#include "LogText.h"
#include "MessageLinks.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <kv_config_gui_mvc/companion_check.h>

#include <cstdarg>
#include <cstdlib>
#include <memory>
#include <ranges>
#include <utility>

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
    // The skins size every push button for an icon. Qt 5 would not ask the box about its button.
    box->button(QMessageBox::Ok)
        ->setStyleSheet(QStringLiteral("QPushButton { min-width: 5em; max-width: 20em;"
                                       " min-height: 1.5em; max-height: 3em; }"));
    box->exec();
    delete box;
}

/// What a sink does with its messages.
struct Sink {
    qint32 kind;
    QStringList MessageLog::*buffer;
    QMessageBox::Icon icon;
};
constexpr Sink errorSink = {KV_MVC_MESSAGE_ERROR, &MessageLog::errors, QMessageBox::Critical};
constexpr Sink warningSink = {KV_MVC_MESSAGE_WARNING, &MessageLog::warnings, QMessageBox::Warning};
constexpr Sink noteSink = {KV_MVC_MESSAGE_NOTE, &MessageLog::notes, QMessageBox::Information};

void takeText(const Sink& sink, const QString& text, std::optional<MessageFacts> facts = {})
{
    const QTextEdit* log = messageLog().widget;
    const bool isLogged = !log || !log->isHidden();
    // Before a box handles events, and with them maybe another check.
    if (RunningCheck::isLast()) {
        messageLog().told.append({sink.kind, text, std::move(facts), isLogged});
    }
    if (isLogged) {
        // What the other check told is shown, and copied.
        if (!RunningCheck::isOvertaken()) {
            messageLog().*sink.buffer += text;
        }
    } else {
        showBox(sink.icon, text + QLatin1Char('\n'));
    }
}

void take(const Sink& sink, const char* format, va_list arguments)
{
    auto facts = RunningCheck::takeFacts();
    if (!format) {
        return;
    }
    try {
        takeText(sink, foreignText(formatted(localized(format), arguments)), std::move(facts));
    } catch (...) {
        // The encoder is between here and whoever could take it: rather is a message lost.
    }
}

int printError(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    take(errorSink, format, arguments);
    va_end(arguments);
    return 0;
}

int printWarning(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    take(warningSink, format, arguments);
    va_end(arguments);
    return 0;
}

int printNote(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    take(noteSink, format, arguments);
    va_end(arguments);
    return 0;
}

int printProgress(const char*, ...)
{
    return 0;
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

} // namespace

MessageLog& messageLog()
{
    static MessageLog log;
    return log;
}

void MessageLog::showIn(QTextEdit* log)
{
    widget = log;
    // Of an earlier dialog; the colours last.
    clearMessages();
    told.clear();
    limits.clear();
    shown.clear();
    shownFirst.clear();
    showsErrors = false;
    // What is taken back is settings, not messages.
    log->setUndoRedoEnabled(false);
    new DigitGroups(log->document());
}

void MessageLog::clearMessages()
{
    for (QStringList* messages : {&errors, &warnings, &notes}) {
        messages->clear();
    }
}

void MessageLog::addError(const QString& text)
{
    takeText(errorSink, text);
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
    const QString first = (errors.isEmpty() ? warnings : errors).value(0);
    const bool keepsItsPlace = widget->isVisible() && first == shownFirst;
    const int place = widget->verticalScrollBar()->value();
    shownFirst = first;

    const LogText text = logText(warnings, errors, notes);
    QVector<Block> blocks = {{text.warnings, warningColour, -1, KV_MVC_MESSAGE_WARNING},
                             {text.errors, errorColour, errorsBegin, KV_MVC_MESSAGE_ERROR},
                             {text.notes, noteColour, -1, KV_MVC_MESSAGE_NOTE}};
    if (!text.omitted.isEmpty()) {
        blocks += {text.omitted, noteColour, -1, std::nullopt};
    }
    // Somebody else may have written there.
    const bool isSame = blocks == shown && widget->document()->revision() == shownRevision;
    if (!isSame) {
        const auto wrap = text.hasEndlessWord ? QTextOption::WrapAnywhere
                                              : QTextOption::WrapAtWordBoundaryOrAnywhere;
        if (widget->wordWrapMode() != wrap) {
            widget->clear();
            widget->setWordWrapMode(wrap);
        }
        write(blocks);
        LogGround::lay(widget);
        shownRevision = widget->document()->revision();
    }
    // Also where the texts are the last ones: they may be about something else.
    markMessages();
    tellErrors();

    const QTextCursor cursor = widget->textCursor();
    const bool isWhereItWas = isSame && keepsItsPlace && !widget->hasFocus() &&
                              !cursor.hasSelection() &&
                              cursor.position() == firstToRead(widget).position();
    // Scrolled to and fro, the log would be painted anew.
    if (!isWhereItWas) {
        scrollToFirstToRead(widget);
    }
    if (keepsItsPlace) {
        widget->verticalScrollBar()->setValue(place);
    }
    // Before it is shown the log does not know yet how much of the text it has room for.
    if (!widget->isVisible()) {
        QMetaObject::invokeMethod(
            widget, [log = widget.data()] { scrollToFirstToRead(log); }, Qt::QueuedConnection);
    }
}

void MessageLog::write(const QVector<Block>& blocks)
{
    shown = blocks;
    const QTextBlockFormat paragraph = hangingIndent();
    QTextCursor cursor(widget->document());
    // One edit, which is laid out once.
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    for (Block& block : shown) {
        QTextCharFormat format;
        format.setForeground(block.colour);
        if (&block == &shown.first()) {
            cursor.setBlockFormat(paragraph);
            cursor.setBlockCharFormat(format);
        } else {
            cursor.insertBlock(paragraph, format);
        }
        QTextBlock first = cursor.block();
        // The first paragraph is the one that was there before.
        first.setUserData(nullptr);
        cursor.insertText(block.text, format);
        first.setUserState(block.state);
        block.paragraph = first.blockNumber();
    }
    cursor.endEditBlock();
}

void MessageLog::markMessages() const
{
    const QTextDocument* const document = widget->document();
    int end = document->blockCount();
    for (const Block& block : std::views::reverse(shown)) {
        // A block ends with an empty paragraph.
        if (const auto& kind = block.kind) {
            message_links::mark(document->findBlockByNumber(block.paragraph), end - 1, told, *kind);
        }
        end = block.paragraph;
    }
}

void MessageLog::tellErrors()
{
    if (showsErrors == !errors.isEmpty()) {
        return;
    }
    showsErrors = !errors.isEmpty();
    // By its description, which is empty as long as the tip tells all.
    const QString text =
        showsErrors ? QCoreApplication::translate("AVCVideoEncoderDlg",
                                                  "There are errors: the settings are refused.")
                    : QString();
    widget->setAccessibleDescription(text);
    announce(widget, showsErrors ? text + QLatin1Char(' ') + errors.first()
                                 : QCoreApplication::translate("AVCVideoEncoderDlg",
                                                               "There are no errors any more."));
}

QString MessageLog::allMessages() const
{
    QStringList blocks;
    for (const QStringList* messages : {&warnings, &errors, &notes}) {
        if (!messages->isEmpty()) {
            blocks += messages->join(QLatin1Char('\n'));
        }
    }
    return blocks.join(QStringLiteral("\n\n"));
}

void MessageLog::pointOutError() const
{
    if (!widget || !widget->isVisible()) {
        return;
    }
    widget->setFocus();
    // Who hears of the focus may delete it.
    if (!widget) {
        return;
    }
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
    const QLatin1String asked(name);
    if (asked == QLatin1String(KV_MVC_MESSAGE_ABOUT)) {
        return reinterpret_cast<KvMvcFunction>(&tellMessageAbout);
    }
    if (asked == QLatin1String(KV_MVC_LIMIT_USE)) {
        return reinterpret_cast<KvMvcFunction>(&tellLimitUse);
    }
    return kvMvcLookUpIn(&sinks, name);
}
