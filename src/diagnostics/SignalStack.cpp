#include "diagnostics/SignalStack.h"

#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstddef>

namespace meridax::crash {

namespace {

constexpr std::size_t kSize = 65536;
/// The kernel keeps 256 pages free below the stack of the first thread.
constexpr std::size_t kFirstThreadGuardPages = 256;

struct GuardArea
{
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
};

/// Plain data, so that a signal handler may read it.
constinit thread_local GuardArea guardArea;

GuardArea findGuardArea()
{
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return {};
    void *lowest = nullptr;
    std::size_t size = 0;
    std::size_t guard = 0;
    pthread_attr_getstack(&attributes, &lowest, &size);
    pthread_attr_getguardsize(&attributes, &guard);
    pthread_attr_destroy(&attributes);

    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    if (gettid() == getpid())
        guard = kFirstThreadGuardPages * page;
    // Versions of the C library differ in whether the guard belongs to the stack they report.
    const auto end = reinterpret_cast<std::uintptr_t>(lowest);
    return {end - std::min<std::uintptr_t>(end, guard), end + std::max(page, guard)};
}

class SignalStack
{
public:
    SignalStack()
    {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        m_length = page + kSize;
        m_memory = mmap(nullptr, m_length, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK, -1, 0);
        if (m_memory == MAP_FAILED)
            return;
        mprotect(m_memory, page, PROT_NONE); // it, too, may overflow
        stack_t stack{};
        stack.ss_sp = static_cast<char *>(m_memory) + page;
        stack.ss_size = kSize;
        m_isInUse = sigaltstack(&stack, &m_previous) == 0;
        if (m_isInUse)
            guardArea = findGuardArea();
    }

    ~SignalStack()
    {
        guardArea = {};
        if (m_isInUse)
            sigaltstack(&m_previous, nullptr);
        if (m_memory != MAP_FAILED)
            munmap(m_memory, m_length);
    }

    SignalStack(const SignalStack &) = delete;
    SignalStack &operator=(const SignalStack &) = delete;

private:
    void *m_memory = MAP_FAILED;
    std::size_t m_length = 0;
    stack_t m_previous{};
    bool m_isInUse = false;
};

} // namespace

void provideSignalStack()
{
    [[maybe_unused]] const thread_local SignalStack stack;
}

bool isInStackGuard(std::uintptr_t address)
{
    return address >= guardArea.begin && address < guardArea.end;
}

} // namespace meridax::crash
