#pragma once

#include <QSyntaxHighlighter>

/// Shows the digits of long numbers in groups of three, with a narrow gap between them. The text is
/// what the encoder said, and is copied, found and read aloud as that.
class DigitGroups : public QSyntaxHighlighter
{
public:
    /// Owned by the document.
    explicit DigitGroups(QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;
};
