#include "resources/kept/ProcessCache.h"

#include <mutex>
#include <vector>

namespace TARN {

namespace {

struct Registry
{
    std::mutex mutex;
    std::vector<bool *> staleFlags;
};

Registry &registry()
{
    // Kept values live in statics of the library, which end with it: nothing is ever unregistered.
    static Registry registry;
    return registry;
}

} // namespace

ProcessCache::ProcessCache()
{
    Registry &all = registry();
    const std::lock_guard<std::mutex> lock(all.mutex);
    all.staleFlags.push_back(&m_stale);
}

void ProcessCache::dropAll()
{
    Registry &all = registry();
    const std::lock_guard<std::mutex> lock(all.mutex);
    for (bool *stale : all.staleFlags) {
        *stale = true;
    }
}

} // namespace TARN
