// What the process that meets a media file may still do: next to nothing.
#include "ProbeLibrary.h"

#include <worker_sandbox.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <functional>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using Act = std::function<int()>;

/// Runs the act in a child process. @return What it returns; -1 when the child does not end.
int inChild(const Act& act)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(act());
    }
    int status = 0;
    const bool ended = ::waitpid(child, &status, 0) == child && WIFEXITED(status);
    return ended ? WEXITSTATUS(status) : -1;
}

/// The error number of a call of the system that failed; 0 when it did not.
int errorOf(long result)
{
    return result < 0 ? errno : 0;
}

void* map(int protection)
{
    return ::mmap(nullptr, 4096, protection, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
}

/// As a kernel, or a container's rules, without filters of system calls has it.
bool refuseFilters()
{
    constexpr auto call = static_cast<__u32>(offsetof(seccomp_data, nr));
    constexpr auto option = static_cast<__u32>(offsetof(seccomp_data, args));
    sock_filter program[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, call),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_seccomp, 3, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, __NR_prctl, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, option),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, PR_SET_SECCOMP, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EINVAL),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filter = {sizeof program / sizeof *program, program};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& name, const QByteArray& content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

Q_DECLARE_METATYPE(Act)

class TestMediaConfinement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void callsInsideFail_data();
    void callsInsideFail();
    void readingGoesOnInside();
    void workerIsConfined();
    void workerSeesNoEnvironment();
    void refusalOfTheSystemIsTraced();
};

void TestMediaConfinement::initTestCase()
{
#if !defined(KV_HAVE_SECCOMP)
    QSKIP("built without libseccomp, or with sanitizers");
#endif
}

void TestMediaConfinement::callsInsideFail_data()
{
    QTest::addColumn<Act>("call");
    const auto row = [](const char* name, const Act& call) { QTest::newRow(name) << call; };
    row("read a file", [] { return errorOf(::open("/etc/hostname", O_RDONLY)); });
    row("write a file", [] { return errorOf(::open("/tmp", O_WRONLY | O_TMPFILE, 0600)); });
    row("ask for a file", [] { return errorOf(::access("/etc/hostname", F_OK)); });
    row("socket of the network", [] { return errorOf(::socket(AF_INET, SOCK_STREAM, 0)); });
    row("socket of the system", [] { return errorOf(::socket(AF_UNIX, SOCK_STREAM, 0)); });
    row("process", [] { return errorOf(::fork()); });
    row("program", [] { return errorOf(::execl("/bin/true", "true", nullptr)); });
    row("signal", [] { return errorOf(::kill(::getppid(), 0)); });
    row("pipe", [] {
        int ends[2];
        return errorOf(::pipe(ends));
    });
    row("other output", [] { return errorOf(::write(STDERR_FILENO, "x", 1)); });
    row("memory to execute", [] { return map(PROT_READ | PROT_EXEC) == MAP_FAILED ? errno : 0; });
    row("memory made executable", [] {
        void* const memory = map(PROT_READ);
        return errorOf(::mprotect(memory, 4096, PROT_READ | PROT_EXEC));
    });
    row("limits", [] {
        const rlimit none = {0, 0};
        return errorOf(::setrlimit(RLIMIT_CORE, &none));
    });
    row("filter", [] { return errorOf(::syscall(__NR_seccomp, 0, 0, nullptr)); });
}

void TestMediaConfinement::callsInsideFail()
{
    QFETCH(Act, call);
    const int error = inChild([&call] {
        const int refused = kv::enterSandbox();
        return refused != 0 ? refused + 100 : call();
    });
    QCOMPARE(error, EPERM);
}

void TestMediaConfinement::readingGoesOnInside()
{
    QTemporaryDir folder;
    QVERIFY(write(folder.filePath(QStringLiteral("in")), "0123456789"));
    const int in =
        ::open(QFile::encodeName(folder.filePath(QStringLiteral("in"))).constData(), O_RDONLY);
    const QByteArray outName = QFile::encodeName(folder.filePath(QStringLiteral("out")));
    const int failed = inChild([&] {
        ::dup2(::open(outName.constData(), O_WRONLY | O_CREAT, 0600), STDOUT_FILENO);
        if (kv::enterSandbox() != 0) {
            return 1;
        }
        auto* const bytes = static_cast<char*>(std::malloc(10 << 20));
        bytes[10 << 19] = 'x';
        const bool isRead = ::lseek(in, 4, SEEK_SET) == 4 && ::read(in, bytes, 3) == 3;
        const bool isWritten = ::write(STDOUT_FILENO, bytes, 3) == 3;
        std::free(bytes);
        return isRead && isWritten ? 0 : 2;
    });
    ::close(in);
    QCOMPARE(failed, 0);
    QCOMPARE(contentOf(folder.filePath(QStringLiteral("out"))), QByteArray("456"));
}

void TestMediaConfinement::workerIsConfined()
{
    // Its answer does not fit into the pipe, so that it stays.
    int ends[2];
    QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
    QCOMPARE(::fcntl(ends[1], F_SETFL, O_NONBLOCK), 0);
    const char byte = 0;
    while (::write(ends[1], &byte, 1) == 1) {
    }
    QCOMPARE(::fcntl(ends[1], F_SETFL, 0), 0);
    const QByteArray program =
        QFile::encodeName(qEnvironmentVariable("KV_BIN_DIR")) + "/kv_media_probe_worker";
    const pid_t worker = ::fork();
    if (worker == 0) {
        ::dup2(::open("/etc/passwd", O_RDONLY), STDIN_FILENO);
        ::dup2(ends[1], STDOUT_FILENO);
        ::execl(program.constData(), program.constData(), "x.ts", nullptr);
        ::_exit(1);
    }
    const QString about = QStringLiteral("/proc/%1/").arg(worker);
    const QByteArray writing = QByteArray::number(__NR_write) + " 0x1 ";
    const bool writes = QTest::qWaitFor(
        [&] { return contentOf(about + QLatin1String("syscall")).startsWith(writing); }, 5000);
    const QByteArray status = contentOf(about + QLatin1String("status"));
    const QByteArray limits = contentOf(about + QLatin1String("limits")).simplified();
    ::kill(worker, SIGKILL);
    ::waitpid(worker, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);
    QVERIFY2(writes, status.constData());
    QVERIFY2(status.contains("\nNoNewPrivs:\t1\n"), status.constData());
    QVERIFY2(status.contains("\nSeccomp:\t2\n"), status.constData());
    QVERIFY2(limits.contains("Max open files 3 3 "), limits.constData());
    QVERIFY2(limits.contains("Max processes 0 0 "), limits.constData());
}

void TestMediaConfinement::workerSeesNoEnvironment()
{
    QTemporaryDir folder;
    QVERIFY(QFile::copy(qEnvironmentVariable("KV_BIN_DIR") + QStringLiteral("/kv_media_probe.so"),
                        folder.filePath(QStringLiteral("kv_media_probe.so"))));
    const QString name = folder.filePath(QStringLiteral("kv_media_probe_worker"));
    const QByteArray seen = QFile::encodeName(folder.filePath(QStringLiteral("seen")));
    QVERIFY(write(name, "#!/bin/sh\n/bin/cat /proc/$$/environ >'" + seen + "'\n"));
    QVERIFY(QFile::setPermissions(name, QFile::ReadOwner | QFile::ExeOwner));
    const QByteArray former = qgetenv("LD_LIBRARY_PATH");
    qputenv("LD_LIBRARY_PATH", "/somewhere");
    qputenv("KV_SECRET", "word");
    const QString media = folder.filePath(QStringLiteral("any.ts"));
    QVERIFY(write(media, "anything"));
    kvtest::ProbeLibrary library(folder.path());
    library.probe(media);
    qunsetenv("KV_SECRET");
    former.isNull() ? qunsetenv("LD_LIBRARY_PATH") : qputenv("LD_LIBRARY_PATH", former);
    QCOMPARE(contentOf(QFile::decodeName(seen)), QByteArray("LD_LIBRARY_PATH=/somewhere\0", 27));
}

void TestMediaConfinement::refusalOfTheSystemIsTraced()
{
    QTemporaryDir folder;
    const QString media = folder.filePath(QStringLiteral("any.ts"));
    QVERIFY(write(media, "Dear reader,\n"));
    const QByteArray errors = QFile::encodeName(folder.filePath(QStringLiteral("errors")));
    const auto told = [&](bool refused, const char* trace) {
        const int result = inChild([&] {
            ::dup2(::open(errors.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
            qputenv("KV_CONFIG_GUI_TRACE", trace);
            kvtest::ProbeLibrary library;
            return !refused || refuseFilters() ? library.probe(media) : 100;
        });
        const QByteArray text = contentOf(QFile::decodeName(errors));
        return result == KV_MEDIA_UNREADABLE ? text : "result " + QByteArray::number(result);
    };
    QCOMPARE(told(false, "1"), QByteArray());
    QCOMPARE(told(true, "0"), QByteArray());
    QCOMPARE(told(true, "1"),
             QByteArray("kv_media_probe: media files are read in a process that the system does "
                        "not confine: Invalid argument\n"));
}

QTEST_GUILESS_MAIN(TestMediaConfinement)
#include "tst_media_confinement.moc"
