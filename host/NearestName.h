#pragma once

#include <QString>
#include <QStringList>

/// The name that somebody has probably meant; case does not matter, nor whether words are joined by
/// hyphens or blanks.
/// @return "; did you mean 'NAME'?", or nothing when none of the names is near.
QString didYouMean(const QString& text, const QStringList& names);
