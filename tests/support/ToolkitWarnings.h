#pragma once

#include <QRegularExpression>
#include <QTest>

/// Makes an unexpected warning of the toolkit a failure of the running test function; call it from
/// init(). The offscreen platform's complaints about what it cannot do are no fault of ours.
inline void failOnToolkitWarnings()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 3, 0)
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support )")));
#endif
}
