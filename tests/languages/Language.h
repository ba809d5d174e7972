#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QTranslator>

/// The module's translation into a language, by its code, as built, installed while the object
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

    /// The codes of all translations.
    static QStringList translations() { return {QStringLiteral("de"), QStringLiteral("jp")}; }
    static QStringList withEnglish() { return QStringList{QStringLiteral("en")} + translations(); }

    /// A row for each language.
    static void addRows(const QStringList& codes = withEnglish())
    {
        QTest::addColumn<QString>("language");
        for (const QString& code : codes) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }

private:
    QTranslator m_translator;
    bool m_ready = false;
};
