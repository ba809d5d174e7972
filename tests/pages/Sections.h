#pragma once

#include <QStringList>
#include <QToolButton>
#include <QWidget>

/// The titles of the container's sections, from top to bottom.
QStringList sectionTitles(const QWidget* container);

/// The button that opens and closes the section; null without one of that title.
QToolButton* sectionButton(const QWidget* container, const QString& title);
