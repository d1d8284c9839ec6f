// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "clocker.h"
#include "testcase.h"
#include "testmain.h"

#include <atomic>
#include <future>
#include <thread>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<CLocker> && !std::is_copy_assignable_v<CLocker>,
              "two guards of one lock would release it twice");
static_assert(!std::is_convertible_v<QMutex&, CLocker>);

class TstCLocker : public TestCase
{
    Q_OBJECT

private slots:
    void holdsTheLockFromConstructionToDestruction();
    void unlockReleasesTheLock();
    void secondUnlockLeavesTheLockToItsNextHolder();
    void destructionAfterUnlockLeavesTheLockToItsNextHolder();
    void lockTakesTheLockAgain();
    void destructionReleasesALockTakenAgain();
    void isReleasedWhenAnExceptionPasses();
    void guardsOfTwoMutexesAreIndependent();
    void constructionWaitsForTheLock();
    void lockWaitsForTheLock();
    void onlyOneThreadHoldsTheLock();
};

namespace
{

bool isFree(QMutex& mutex)
{
    if (!mutex.tryLock())
        return false;
    mutex.unlock();
    return true;
}

constexpr auto limit = std::chrono::seconds(30);

// Waits until the other thread has begun, and then lets it get to what it does next. What it finds
// there does not depend on how far it gets.
void letGetOn(const std::atomic<bool>& begun)
{
    for (int turns = 0; turns < 1000; turns += begun)
        std::this_thread::yield();
}

} // namespace

void TstCLocker::holdsTheLockFromConstructionToDestruction()
{
    QMutex mutex;
    {
        const CLocker locker(mutex);
        QVERIFY(!isFree(mutex));
    }
    QVERIFY(isFree(mutex));
}

void TstCLocker::unlockReleasesTheLock()
{
    QMutex mutex;
    CLocker locker(mutex);
    locker.Unlock();
    QVERIFY(isFree(mutex));
}

void TstCLocker::secondUnlockLeavesTheLockToItsNextHolder()
{
    QMutex mutex;
    CLocker locker(mutex);
    locker.Unlock();
    const CLocker next(mutex);
    locker.Unlock();
    QVERIFY(!isFree(mutex));
}

void TstCLocker::destructionAfterUnlockLeavesTheLockToItsNextHolder()
{
    QMutex mutex;
    auto locker = std::make_unique<CLocker>(mutex);
    locker->Unlock();
    const CLocker next(mutex);
    locker.reset();
    QVERIFY(!isFree(mutex));
}

void TstCLocker::lockTakesTheLockAgain()
{
    QMutex mutex;
    CLocker locker(mutex);
    for (int i = 0; i < 3; ++i) {
        locker.Unlock();
        QVERIFY(isFree(mutex));
        locker.Lock();
        QVERIFY(!isFree(mutex));
    }
}

void TstCLocker::destructionReleasesALockTakenAgain()
{
    QMutex mutex;
    {
        CLocker locker(mutex);
        locker.Unlock();
        locker.Lock();
    }
    QVERIFY(isFree(mutex));
}

void TstCLocker::isReleasedWhenAnExceptionPasses()
{
    QMutex mutex;
    try {
        const CLocker locker(mutex);
        throw 1;
    } catch (int) {
    }
    QVERIFY(isFree(mutex));
}

void TstCLocker::guardsOfTwoMutexesAreIndependent()
{
    QMutex first;
    QMutex second;
    CLocker firstLocker(first);
    const CLocker secondLocker(second);
    firstLocker.Unlock();
    QVERIFY(isFree(first));
    QVERIFY(!isFree(second));
}

void TstCLocker::constructionWaitsForTheLock()
{
    QMutex mutex;
    CLocker locker(mutex);
    std::atomic<bool> begun{false};
    std::atomic<bool> released{false};
    auto other = std::async(std::launch::async, [&] {
        begun = true;
        const CLocker waiting(mutex);
        return released.load();
    });
    letGetOn(begun);
    released = true;
    locker.Unlock();
    QVERIFY(other.wait_for(limit) == std::future_status::ready);
    QVERIFY(other.get());
    QVERIFY(isFree(mutex));
}

void TstCLocker::lockWaitsForTheLock()
{
    QMutex mutex;
    CLocker waiting(mutex);
    waiting.Unlock();
    CLocker locker(mutex);
    std::atomic<bool> begun{false};
    std::atomic<bool> released{false};
    auto other = std::async(std::launch::async, [&] {
        begun = true;
        waiting.Lock();
        const bool wasReleased = released;
        waiting.Unlock();
        return wasReleased;
    });
    letGetOn(begun);
    released = true;
    locker.Unlock();
    QVERIFY(other.wait_for(limit) == std::future_status::ready);
    QVERIFY(other.get());
    QVERIFY(isFree(mutex));
}

void TstCLocker::onlyOneThreadHoldsTheLock()
{
    constexpr int rounds = 20'000;
    QMutex mutex;
    int count = 0;
    const auto addUp = [&mutex, &count] {
        for (int i = 0; i < rounds; ++i) {
            CLocker locker(mutex);
            ++count;
            locker.Unlock();
            locker.Lock();
            ++count;
        }
    };
    std::thread other(addUp);
    addUp();
    other.join();
    QCOMPARE(count, 4 * rounds);
}

KORVEX_TEST_MAIN(TstCLocker)

#include "tst_clocker.moc"
