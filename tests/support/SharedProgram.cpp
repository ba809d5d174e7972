#include "SharedProgram.h"

#include <QFileInfo>

#include <cstdio>

namespace
{

/// Filled while the program's static objects are made, so it is made by its first use.
QMap<QByteArray, SharedTest::Run>& tests()
{
    static QMap<QByteArray, SharedTest::Run> all;
    return all;
}

} // namespace

SharedTest::SharedTest(const char* sourceFile, Run run)
{
    tests().insert(QFileInfo(QString::fromUtf8(sourceFile)).completeBaseName().toUtf8(), run);
}

int main(int argc, char* argv[])
{
    const SharedTest::Run run = argc > 1 ? tests().value(argv[1]) : nullptr;
    if (!run) {
        std::fprintf(stderr, "Usage: %s TEST [ARGUMENT...]; a TEST is one of:\n", argv[0]);
        for (const QByteArray& name : tests().keys()) {
            std::fprintf(stderr, "  %s\n", name.constData());
        }
        return 2;
    }
    // The test sees a program of its own.
    argv[1] = argv[0];
    return run(argc - 1, argv + 1);
}
