#include "Support/Watchdog.h"

#include <QtCore/qglobal.h>

#include <cstdio>
#include <cstdlib>

#if defined(Q_OS_LINUX)
#include <csignal>
#include <dirent.h>
#include <execinfo.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Runs in the thread whose stack it writes.
void writeStack(int)
{
    void *frames[100];
    const char heading[] = "\n--- a thread:\n";
    [[maybe_unused]] const auto written = write(STDERR_FILENO, heading, sizeof(heading) - 1);
    backtrace_symbols_fd(frames, backtrace(frames, 100), STDERR_FILENO);
}

void writeAllStacks()
{
    void *frame = nullptr;
    backtrace(&frame, 1); // loads what it needs now, not in the handler
    struct sigaction action = {};
    action.sa_handler = &writeStack;
    sigaction(SIGUSR2, &action, nullptr);
    DIR *tasks = opendir("/proc/self/task");
    for (const dirent *task = nullptr; tasks != nullptr && (task = readdir(tasks)) != nullptr;) {
        const long thread = std::atol(task->d_name);
        if (thread > 0 && thread != syscall(SYS_gettid)) {
            syscall(SYS_tgkill, getpid(), thread, SIGUSR2);
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
        }
    }
}

} // namespace
#else
static void writeAllStacks()
{
}
#endif

Watchdog::Watchdog(int inSeconds) : mPatience(inSeconds), mThread([this] { watch(); })
{
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard<std::mutex> lock(mMutex);
        mDone = true;
    }
    mWake.notify_one();
    mThread.join();
}

void Watchdog::watch()
{
    std::unique_lock<std::mutex> lock(mMutex);
    if (mWake.wait_for(lock, mPatience, [this] { return mDone; })) {
        return;
    }
    std::fprintf(stderr, "\nWatchdog: the test hangs for %d seconds\n", int(mPatience.count()));
    writeAllStacks();
    std::abort();
}
