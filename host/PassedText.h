#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>

/// Text that a library reads from a path. It needs no folder where the system has files in memory,
/// and a temporary folder elsewhere.
class ReadableText
{
public:
    /// @throws Failure when there is no place for it.
    explicit ReadableText(const QByteArray& text);
    ~ReadableText();
    ReadableText(const ReadableText&) = delete;
    ReadableText& operator=(const ReadableText&) = delete;

    [[nodiscard]] const QString& path() const { return m_path; }

private:
    bool keepInMemory(const QByteArray& text);

    int m_file = -1;
    std::optional<QTemporaryDir> m_folder;
    QString m_path;
};

/// Takes the text that a library writes to a path.
class WrittenText
{
public:
    virtual ~WrittenText() = default;
    [[nodiscard]] virtual QString path() const = 0;
    /// To be called when the library has written. @return The text; nothing when there is none.
    virtual std::optional<QByteArray> take() = 0;

    /// A pipe, for libraries that write to one; null where the system gives it no path.
    static std::unique_ptr<WrittenText> inPipe();
    /// A file in a temporary folder. @throws Failure when none can be made.
    static std::unique_ptr<WrittenText> inFolder();
};
