/// The tests of a folder are one program, which is linked once: PROGRAM NAME [ARGUMENT...] runs one
/// of them.
///
/// This file is precompiled with what most tests include, and comes first in every source of such a
/// program. The macros that end a test's source, each a program's main() otherwise, add the test to
/// the program under its file's name.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#ifdef QT_WIDGETS_LIB
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#endif
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A test of this program, from its construction on.
struct SharedTest {
    using Run = int (*)(int argc, char** argv);

    SharedTest(const char* sourceFile, Run run);
};

#define KV_SHARED_TEST(Test, ...)                                                                  \
    static int runSharedTest([[maybe_unused]] int argc, [[maybe_unused]] char** argv)              \
    {                                                                                              \
        __VA_ARGS__                                                                                \
        Test test;                                                                                 \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }                                                                                              \
    static const SharedTest sharedTest(__FILE__, runSharedTest);

// An application as the toolkit's macros make it.
#define KV_APPLICATION(Class)                                                                      \
    Class application(argc, argv);                                                                 \
    Class::setAttribute(Qt::AA_Use96Dpi, true);

#undef QTEST_MAIN
#undef QTEST_GUILESS_MAIN
#undef QTEST_APPLESS_MAIN
#ifdef QT_WIDGETS_LIB
#define QTEST_MAIN(Test) KV_SHARED_TEST(Test, KV_APPLICATION(QApplication))
#else
#define QTEST_MAIN(Test) KV_SHARED_TEST(Test, KV_APPLICATION(QCoreApplication))
#endif
#define QTEST_GUILESS_MAIN(Test) KV_SHARED_TEST(Test, KV_APPLICATION(QCoreApplication))
#define QTEST_APPLESS_MAIN(Test) KV_SHARED_TEST(Test)
