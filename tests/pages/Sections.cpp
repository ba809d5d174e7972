#include "Sections.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>

QStringList sectionTitles(const QWidget* container)
{
    const auto* const area = container->findChild<QScrollArea*>();
    const auto* const grid = qobject_cast<QGridLayout*>(area->widget()->layout());
    QStringList titles;
    for (int row = 0; row < grid->rowCount(); ++row) {
        if (QLayoutItem* const item = grid->itemAtPosition(row, 1)) {
            if (const auto* label = qobject_cast<QLabel*>(item->widget())) {
                titles += label->text();
            }
        }
    }
    return titles;
}

QToolButton* sectionButton(const QWidget* container, const QString& title)
{
    for (const QLabel* label : container->findChildren<QLabel*>()) {
        if (label->text() == title) {
            if (auto* button = qobject_cast<QToolButton*>(label->buddy())) {
                return button;
            }
        }
    }
    return nullptr;
}
