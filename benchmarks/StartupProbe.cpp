#include <QtWidgets/QApplication>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>

namespace {

using Clock = std::chrono::steady_clock;

bool load(const char *library)
{
    if (dlopen(library, RTLD_NOW | RTLD_GLOBAL)) {
        return true;
    }
    std::fprintf(stderr, "%s\n", dlerror());
    return false;
}

} // namespace

/// Prints how many nanoseconds it takes to load the libraries named after "--" and to construct an
/// application object. Those named before are loaded beforehand.
int main(int argc, char **argv)
{
    int argument = 1;
    for (; argument < argc && std::strcmp(argv[argument], "--") != 0; ++argument) {
        if (!load(argv[argument])) {
            return 1;
        }
    }

    const Clock::time_point begin = Clock::now();
    for (++argument; argument < argc; ++argument) {
        if (!load(argv[argument])) {
            return 1;
        }
    }
    int applicationArguments = 1;
    const QApplication application(applicationArguments, argv);
    const std::chrono::nanoseconds duration = Clock::now() - begin;

    std::printf("%lld\n", static_cast<long long>(duration.count()));
    return 0;
}
