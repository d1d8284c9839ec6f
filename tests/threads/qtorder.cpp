// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include <QDeadlineTimer>
#include <QEvent>
#include <QList>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <cstddef>
#include <sanitizer/tsan_interface.h>

// Tells the thread sanitizer which order Qt's locks and threads give and where Qt changes a list.
// It cannot see that itself, as Qt is not compiled with it: everything that a lock guards would be
// a race, and a list without a lock would be none. The linker leads each call of these functions of
// Qt to the wrapper of the same name here.

#define KORVEX_WRAP(result, symbol, ...)                                                           \
    result __real_##symbol(__VA_ARGS__);                                                           \
    result __wrap_##symbol(__VA_ARGS__)

namespace
{

// Stands for all signals.
char emissions;

} // namespace

extern "C" {

void __tsan_write_range(void* begin, std::size_t bytes);

void AnnotateIgnoreWritesBegin(const char* file, int line);
void AnnotateIgnoreWritesEnd(const char* file, int line);

// QArrayData::deallocate(QArrayData*, unsigned long, unsigned long): shared data goes with the last
// who has it. That all others are done with it is known from a counter, which Qt lowers as well.
KORVEX_WRAP(void, _ZN10QArrayData10deallocateEPS_mm, void* data, std::size_t size,
            std::size_t alignment)
{
    AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    __real__ZN10QArrayData10deallocateEPS_mm(data, size, alignment);
    AnnotateIgnoreWritesEnd(__FILE__, __LINE__);
}

// QListData::append()
KORVEX_WRAP(void**, _ZN9QListData6appendEv, QListData* list)
{
    __tsan_write_range(&list->d->begin, sizeof list->d->begin + sizeof list->d->end);
    return __real__ZN9QListData6appendEv(list);
}

// QListData::erase(void**)
KORVEX_WRAP(void**, _ZN9QListData5eraseEPPv, QListData* list, void** entry)
{
    __tsan_write_range(&list->d->begin, sizeof list->d->begin + sizeof list->d->end);
    return __real__ZN9QListData5eraseEPPv(list, entry);
}

// QMutex::lock()
KORVEX_WRAP(void, _ZN6QMutex4lockEv, QMutex* mutex)
{
    __real__ZN6QMutex4lockEv(mutex);
    __tsan_acquire(mutex);
}

// QMutex::tryLock(int)
KORVEX_WRAP(bool, _ZN6QMutex7tryLockEi, QMutex* mutex, int timeout)
{
    const bool locked = __real__ZN6QMutex7tryLockEi(mutex, timeout);
    if (locked)
        __tsan_acquire(mutex);
    return locked;
}

// QMutex::unlock()
KORVEX_WRAP(void, _ZN6QMutex6unlockEv, QMutex* mutex)
{
    __tsan_release(mutex);
    __real__ZN6QMutex6unlockEv(mutex);
}

// QWaitCondition::wait(QMutex*, QDeadlineTimer)
KORVEX_WRAP(bool, _ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer, QWaitCondition* condition,
            QMutex* mutex, QDeadlineTimer deadline)
{
    __tsan_release(mutex);
    const bool woken =
        __real__ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer(condition, mutex, deadline);
    __tsan_acquire(mutex);
    return woken;
}

// QThread::start(QThread::Priority); the sanitizer sees a thread begin, but not its end.
KORVEX_WRAP(void, _ZN7QThread5startENS_8PriorityE, QThread* thread, QThread::Priority priority)
{
    QObject::connect(thread, &QThread::finished, [thread] { __tsan_release(thread); });
    __real__ZN7QThread5startENS_8PriorityE(thread, priority);
}

// QThread::wait(QDeadlineTimer)
KORVEX_WRAP(bool, _ZN7QThread4waitE14QDeadlineTimer, QThread* thread, QDeadlineTimer deadline)
{
    const bool ended = __real__ZN7QThread4waitE14QDeadlineTimer(thread, deadline);
    if (ended)
        __tsan_acquire(thread);
    return ended;
}

// QThread::wait(unsigned long)
KORVEX_WRAP(bool, _ZN7QThread4waitEm, QThread* thread, unsigned long milliseconds)
{
    const bool ended = __real__ZN7QThread4waitEm(thread, milliseconds);
    if (ended)
        __tsan_acquire(thread);
    return ended;
}

// QMetaObject::activate(QObject*, const QMetaObject*, int, void**): a signal is emitted. Which
// objects it reaches is known to Qt alone; every emission counts as one before what is handled
// after it.
KORVEX_WRAP(void, _ZN11QMetaObject8activateEP7QObjectPKS_iPPv, QObject* sender,
            const QMetaObject* type, int signal, void** arguments)
{
    __tsan_release(&emissions);
    __real__ZN11QMetaObject8activateEP7QObjectPKS_iPPv(sender, type, signal, arguments);
}

// QMetaObject::invokeMethodImpl(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)
KORVEX_WRAP(
    bool,
    _ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv,
    QObject* object, void* slot, Qt::ConnectionType type, void* result)
{
    __tsan_release(object);
    return __real__ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv(
        object, slot, type, result);
}
}

namespace
{

// Any thread, before an object handles an event.
bool beforeEvent(void** objectAndEvent)
{
    if (static_cast<QEvent*>(objectAndEvent[1])->type() == QEvent::MetaCall) {
        __tsan_acquire(objectAndEvent[0]);
        __tsan_acquire(&emissions);
    }
    return false;
}

[[maybe_unused]] const bool watchesEvents =
    QInternal::registerCallback(QInternal::EventNotifyCallback, beforeEvent);

} // namespace

// What goes on within Qt alone: the end of a thread wakes everyone who waits for it, which no code
// of ours does, the test library watches over the time that a test takes, and a slot which the
// sender waits for reads from the sender's stack where its result would go.
extern "C" const char* __tsan_default_suppressions()
{
    return "race:^QWaitCondition::wakeAll\n"
           "race:^QTest::qRun\n"
           "race_top:^QtPrivate::FunctorCall<\n";
}
