#include "PassedText.h"

#include "Failure.h"

#include <QFile>

namespace
{

const QString fileName = QStringLiteral("settings.ini");

[[noreturn]] void refuse(const QString& reason)
{
    throw Failure(QStringLiteral("cannot use a temporary file: %1").arg(reason));
}

void requireFolder(const QTemporaryDir& folder)
{
    if (!folder.isValid()) {
        refuse(folder.errorString());
    }
}

class TextInFolder : public WrittenText
{
public:
    TextInFolder() { requireFolder(m_folder); }

    [[nodiscard]] QString path() const override { return m_folder.filePath(fileName); }

    std::optional<QByteArray> take() override
    {
        QFile file(path());
        if (!file.open(QIODevice::ReadOnly)) {
            return std::nullopt;
        }
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

ReadableText::ReadableText(const QByteArray& text)
{
    if (keepInMemory(text)) {
        return;
    }
    m_folder.emplace();
    requireFolder(*m_folder);
    m_path = m_folder->filePath(fileName);
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        refuse(file.errorString());
    }
}

std::unique_ptr<WrittenText> WrittenText::inFolder()
{
    return std::make_unique<TextInFolder>();
}
