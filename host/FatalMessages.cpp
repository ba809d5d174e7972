#include "FatalMessages.h"

#include "CommandLine.h"
#include "Printable.h"
#include "TextOutput.h"

#include <QByteArray>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace
{

QtMessageHandler formerHandler = nullptr;

/// What the platform plugins said; the first says why there is no display.
QStringList platformMessages;

void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        const QString reason = platformMessages.isEmpty() ? text : platformMessages.first();
        writeText(stderr, QStringLiteral("%1: cannot open a window: %2\n")
                              .arg(QLatin1String(programName),
                                   printable(reason.section(QLatin1Char('\n'), 0, 0).trimmed()))
                              .toUtf8());
        std::_Exit(ExitTrouble);
    }
    if (context.category != nullptr && std::strncmp(context.category, "qt.qpa.", 7) == 0) {
        platformMessages << text;
    } else {
        formerHandler(type, context, text);
    }
}

} // namespace

FatalMessages::FatalMessages() : m_former(qInstallMessageHandler(handle))
{
    formerHandler = m_former;
}

FatalMessages::~FatalMessages()
{
    qInstallMessageHandler(m_former);
    for (const QString& text : std::as_const(platformMessages)) {
        qWarning("%s", qUtf8Printable(text));
    }
    platformMessages.clear();
}
