#include "support/thr_Singleton.h"

#include <algorithm>
#include <vector>

std::mutex& thr_GlobalLock() {
    static std::mutex lock;
    return lock;
}

namespace {

struct RegisteredFinalizer {
    thr_ThrSingletonRegistry::Finalizer finalizer;
    int level;
    unsigned long long sequence;  // registration order
};

// The finalizers of one thread. Its destructor is the thread-exit hook.
class ThreadFinalizers {
  public:
    ~ThreadFinalizers();

    RegisteredFinalizer* find(thr_ThrSingletonRegistry::Finalizer finalizer) {
        auto found = std::find_if(
            m_entries.begin(), m_entries.end(),
            [finalizer](RegisteredFinalizer const& e) { return e.finalizer == finalizer; });
        return found == m_entries.end() ? nullptr : &*found;
    }
    void set(thr_ThrSingletonRegistry::Finalizer finalizer, int level) {
        if (RegisteredFinalizer* entry = find(finalizer)) {
            entry->level = level;
            entry->sequence = m_nextSequence++;
            return;
        }
        m_entries.push_back({finalizer, level, m_nextSequence++});
    }
    void runAll();

  private:
    std::vector<RegisteredFinalizer> m_entries;
    unsigned long long m_nextSequence = 0;
};

// Set once this thread's registry is destroyed. A singleton made after that,
// by the destructor of some other thread-local object, is not registered in
// the dead registry: it is left to the end of the thread, unfinalized.
thread_local bool t_registryGone = false;

ThreadFinalizers& threadFinalizers() {
    thread_local ThreadFinalizers finalizers;
    return finalizers;
}

void ThreadFinalizers::runAll() {
    // A finalizer may bring a singleton back to life, which registers anew:
    // take the list out before running it, and go again until nothing is left.
    while (!m_entries.empty()) {
        std::vector<RegisteredFinalizer> batch;
        batch.swap(m_entries);
        std::sort(batch.begin(), batch.end(),
                  [](RegisteredFinalizer const& a, RegisteredFinalizer const& b) {
                      if (a.level != b.level) return a.level < b.level;
                      return a.sequence > b.sequence;
                  });
        for (RegisteredFinalizer const& entry : batch) entry.finalizer();
    }
}

ThreadFinalizers::~ThreadFinalizers() {
    runAll();
    t_registryGone = true;
}

}  // namespace

void thr_ThrSingletonRegistry::SetDestructLevel(Finalizer finalizer, int level) {
    if (t_registryGone || !finalizer) return;
    threadFinalizers().set(finalizer, level);
}

void thr_ThrSingletonRegistry::RegisterUnlessPresent(Finalizer finalizer) {
    if (t_registryGone || !finalizer) return;
    ThreadFinalizers& finalizers = threadFinalizers();
    if (!finalizers.find(finalizer)) finalizers.set(finalizer, kDefaultDestructLevel);
}

bool thr_ThrSingletonRegistry::IsRegistered(Finalizer finalizer) {
    return !t_registryGone && threadFinalizers().find(finalizer) != nullptr;
}

void thr_ThrSingletonRegistry::FinalizeThread() {
    if (t_registryGone) return;
    threadFinalizers().runAll();
}
