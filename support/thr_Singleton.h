#pragma once
#include <atomic>
#include <cstdlib>
#include <mutex>

// The global lock of the support layer. It guards the bookkeeping of the
// singletons (their thread-local slots while they change, and the counts of
// live instances); it is never held while a singleton's constructor or
// destructor runs, so those may use other singletons freely.
std::mutex& thr_GlobalLock();

// The order in which the thread singletons of one thread are destroyed.
//
// Each finalizer is registered for the calling thread at a level. At thread
// exit, or on FinalizeThread(), finalizers run by ascending level, and within
// one level in reverse order of registration (the last registered goes
// first, as with automatic objects). The deck logic's own singletons register
// at level 9; a thread singleton that registers nothing itself gets
// kDefaultDestructLevel when it is created.
//
// Finalizers run from the destructor of a thread-local object of this layer.
// Thread-local objects made after it are already gone by then, so the
// destructor of a singleton should not rely on such objects; a host that
// needs full control calls FinalizeThread() itself before the thread ends.
class thr_ThrSingletonRegistry {
  public:
    using Finalizer = void (*)();
    static constexpr int kDefaultDestructLevel = 10;

    // Registers `finalizer` for this thread at `level`, or moves it to `level`
    // if it is registered already (it then counts as registered last).
    static void SetDestructLevel(Finalizer finalizer, int level);
    // Registers `finalizer` at kDefaultDestructLevel unless it is registered.
    static void RegisterUnlessPresent(Finalizer finalizer);
    static bool IsRegistered(Finalizer finalizer);
    // Runs and forgets this thread's finalizers in destruction order. A
    // singleton made again while they run is finalized in the same call.
    static void FinalizeThread();
};

// The one T of the calling thread, made on first use. The fast path reads a
// thread-local pointer and takes no lock: only the owning thread touches its
// slot.
template <class T>
class thr_ThreadSingleton {
  public:
    static T& Instance() {
        if (T* existing = t_instance) return *existing;
        return create();
    }
    static bool Exists() noexcept { return t_instance != nullptr; }
    // Destroys this thread's instance, if any; the next Instance() makes a new one.
    static void Finalize() {
        T* doomed = nullptr;
        {
            std::lock_guard<std::mutex> lock(thr_GlobalLock());
            doomed = t_instance;
            t_instance = nullptr;
            if (doomed) --s_liveCount;
        }
        delete doomed;
    }
    static void Destroy() { Finalize(); }
    // Number of threads that hold an instance now.
    static int LiveCount() {
        std::lock_guard<std::mutex> lock(thr_GlobalLock());
        return s_liveCount;
    }

  private:
    static T& create() {
        T* made = new T();  // outside the lock: T's constructor may use singletons
        T* registered = nullptr;
        {
            std::lock_guard<std::mutex> lock(thr_GlobalLock());
            if (!t_instance) {
                t_instance = made;
                ++s_liveCount;
            }
            registered = t_instance;
        }
        // Another instance took the slot while this one was being built, which
        // means T's construction re-entered Instance(): the program's own
        // bookkeeping is broken, and going on would hand out two objects.
        if (registered != made) std::abort();
        thr_ThrSingletonRegistry::RegisterUnlessPresent(&Finalize);
        return *made;
    }

    static inline thread_local T* t_instance = nullptr;
    static inline int s_liveCount = 0;
};

// The one T of the process, made on first use by whichever thread comes first,
// and destroyed at process exit or by Finalize(). Finalize() must not race with
// users of the instance: it is meant for start-up and shut-down code.
template <class T>
class thr_GlobalSingleton {
  public:
    static T& Instance() {
        if (T* existing = s_instance.load(std::memory_order_acquire)) return *existing;
        return create();
    }
    static bool Exists() noexcept { return s_instance.load(std::memory_order_acquire) != nullptr; }
    static void Finalize() {
        T* doomed = nullptr;
        {
            std::lock_guard<std::mutex> lock(creationLock());
            doomed = s_instance.exchange(nullptr, std::memory_order_acq_rel);
        }
        delete doomed;
    }

  private:
    struct ExitFinalizer {
        ~ExitFinalizer() { Finalize(); }
    };

    static T& create() {
        // The lock is made before the exit hook, so that it outlives it.
        std::mutex& lock = creationLock();
        static ExitFinalizer const atExit;
        std::lock_guard<std::mutex> guard(lock);
        T* existing = s_instance.load(std::memory_order_relaxed);
        if (!existing) {
            existing = new T();
            s_instance.store(existing, std::memory_order_release);
        }
        return *existing;
    }
    // One lock per type, so that T's constructor may reach other global singletons.
    static std::mutex& creationLock() {
        static std::mutex lock;
        return lock;
    }

    static inline std::atomic<T*> s_instance{nullptr};
};
