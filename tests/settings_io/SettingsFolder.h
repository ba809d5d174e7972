// A folder for settings files, and the library that reads and writes them.
#pragma once

#include "SettingsLibrary.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace kvtest
{

constexpr char oldText[] = "[record]\nnum_views = 7\n[view 0]\n";

/// A record that is told from others by its number of views.
inline KvMvcSettings recordOfViews(int views)
{
    KvMvcSettings settings{};
    settings.num_views = views;
    return settings;
}

/// What a test of settings files stands on; new for each test function.
class SettingsFolder
{
protected:
    bool renew()
    {
        m_library.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        m_library = std::make_unique<SettingsLibrary>();
        return m_folder->isValid() && m_library->isLoaded();
    }
    QString loadError() const { return m_folder->errorString() + m_library->loadError(); }

    QByteArray path(const char* name) const
    {
        return (m_folder->path() + QLatin1Char('/') + QString::fromUtf8(name)).toUtf8();
    }
    void makeFolder(const char* name) const
    {
        QVERIFY(QDir(m_folder->path()).mkpath(QString::fromUtf8(name)));
    }
    void put(const QByteArray& file, const QByteArray& content) const
    {
        QFile out(QString::fromUtf8(file));
        QVERIFY2(out.open(QIODevice::WriteOnly), file.constData());
        out.write(content);
    }
    QByteArray get(const QByteArray& file) const
    {
        QFile in(QString::fromUtf8(file));
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("cannot be opened");
    }
    /// Everything that the folder holds.
    QStringList names() const
    {
        return QDir(m_folder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SettingsLibrary> m_library;
};

} // namespace kvtest
