#pragma once

#include <QMap>
#include <QProcess>

/// An X server of the test's own, until the object is destroyed.
class VirtualDisplay
{
public:
    static constexpr int width = 1280;
    static constexpr int height = 1024;

    enum class WithoutClients { GoesOn, StartsAnew };

    ~VirtualDisplay() { stop(); }

    /// Whether this system has one.
    static bool exists();
    /// @return Whether it takes connections now.
    bool start(WithoutClients behaviour = WithoutClients::GoesOn);
    void stop();

    /// ":7"; empty before it has started.
    QByteArray name() const { return m_name; }
    /// For a process that shall show its windows there.
    QMap<QString, QString> environment() const;

private:
    QProcess m_server;
    QByteArray m_name;
};
