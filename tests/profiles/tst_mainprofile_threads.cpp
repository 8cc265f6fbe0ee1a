// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

#include "mainprofile.h"
#include "testmain.h"

#include <QTest>

#include <array>
#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

using namespace Dezimo;

/// Several threads are the first to use the one MainProfile, all at once. Nothing else in this
/// program may touch it before.
class MainProfileThreadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstCallersGetOneCompleteObject();
};

namespace {

constexpr std::size_t kThreads = 8;

/// What one thread got, and what it found there.
struct Seen
{
    MainProfile *profile = nullptr;
    int decimalPlaces = 0;
    std::size_t modules = 0;
};

/// Holds all threads back until the last one is there.
class StartBarrier
{
public:
    void wait()
    {
        ++m_waiting;
        while (m_waiting < kThreads)
            std::this_thread::yield();
    }

private:
    std::atomic<std::size_t> m_waiting{0};
};

} // namespace

void MainProfileThreadsTest::theFirstCallersGetOneCompleteObject()
{
    StartBarrier barrier;
    std::array<Seen, kThreads> seen;
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (Seen &mine : seen) {
        threads.emplace_back([&barrier, &mine] {
            barrier.wait();
            MainProfile &profile = MainProfile::instance();
            mine = {&profile, profile.decimalPlaces(), profile.modules().size()};
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    for (const Seen &one : seen) {
        QCOMPARE(one.profile, &MainProfile::instance());
        QCOMPARE(one.decimalPlaces, 3);
        QCOMPARE(one.modules, std::size_t(5));
    }
}

DEZIMO_TEST_MAIN(QCoreApplication, MainProfileThreadsTest)

#include "tst_mainprofile_threads.moc"
