#include "VirtualDisplay.h"

bool VirtualDisplay::exists()
{
    return qstrlen(KV_XVFB) > 0;
}

bool VirtualDisplay::start(WithoutClients behaviour)
{
    QStringList arguments = {QStringLiteral("-displayfd"),
                             QStringLiteral("1"),
                             QStringLiteral("-screen"),
                             QStringLiteral("0"),
                             QStringLiteral("%1x%2x24").arg(width).arg(height),
                             QStringLiteral("-nolisten"),
                             QStringLiteral("tcp")};
    if (behaviour == WithoutClients::GoesOn) {
        arguments += QStringLiteral("-noreset");
    }
    m_server.start(QStringLiteral(KV_XVFB), arguments);
    while (!m_server.canReadLine()) {
        if (!m_server.waitForReadyRead(20000)) {
            return false;
        }
    }
    m_name = ':' + m_server.readLine().trimmed();
    return true;
}

void VirtualDisplay::stop()
{
    if (m_server.state() != QProcess::NotRunning) {
        m_server.terminate();
        m_server.waitForFinished();
    }
}

QMap<QString, QString> VirtualDisplay::environment() const
{
    return {{QStringLiteral("DISPLAY"), QString::fromLatin1(m_name)},
            {QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb")}};
}
