#pragma once

// Ends the process when a test hangs, with the stacks of all its threads, so that a stuck modal state or a
// deadlock shows where it is instead of waiting for the time limit of the whole run.
//
//     void init() { mWatchdog.emplace(60); }
//     void cleanup() { mWatchdog.reset(); }
//
// Stacks are written on Linux alone; elsewhere there is only the message.

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

class Watchdog
{
public:
    explicit Watchdog(int inSeconds);
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;
    ~Watchdog();

private:
    void watch();

    const std::chrono::seconds mPatience;
    bool mDone = false;
    std::mutex mMutex;
    std::condition_variable mWake;
    std::thread mThread;
};
