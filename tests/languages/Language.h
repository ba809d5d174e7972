#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTest>
#include <QTranslator>

/// The module's translation into a language ("de", "jp") as built, installed while the object
/// lives. "en" installs none.
class Language
{
public:
    explicit Language(const QString& code)
    {
        m_ready = code == QLatin1String("en") ||
                  (m_translator.load(QStringLiteral("gui_mvc_") + code,
                                     qEnvironmentVariable("KV_BIN_DIR"), QString()) &&
                   QCoreApplication::installTranslator(&m_translator));
    }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
    ~Language() { QCoreApplication::removeTranslator(&m_translator); }

    bool isReady() const { return m_ready; }

    /// Whether this translation has the text.
    bool knows(const QByteArray& context, const QByteArray& text, const QByteArray& comment) const
    {
        return !m_translator.translate(context, text, comment).isEmpty();
    }

    /// A row for each language.
    static void addRows()
    {
        QTest::addColumn<QString>("language");
        for (const char* language : {"en", "de", "jp"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

private:
    QTranslator m_translator;
    bool m_ready = false;
};
