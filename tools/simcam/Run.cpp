#include "Run.h"

#include "Plug.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

namespace meridax::simcam {

namespace {

namespace fs = std::filesystem;

constexpr int kPassedSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGUSR1, SIGUSR2};
constexpr int kNotFound = 127;

volatile sig_atomic_t g_child = 0;

/// Passes a signal on, unless it came from the terminal, which has sent it to the child as well.
void passOn(int signal, siginfo_t *from, void *)
{
    if (g_child > 0 && from->si_code <= 0)
        ::kill(static_cast<pid_t>(g_child), signal);
}

std::string freshDirectory()
{
    std::string path = (fs::temp_directory_path() / "simcam.XXXXXX").string();
    if (!::mkdtemp(path.data()))
        throw UserError(path + ": " + std::strerror(errno));
    return path;
}

/// The library beside this program.
std::string libraryPath()
{
    const fs::path path = fs::read_symlink("/proc/self/exe").parent_path() / "libsimcam.so";
    if (!fs::exists(path))
        throw UserError(path.string() + " is missing");
    return path.string();
}

void setEnvironment(const std::string &dir, const Arguments &preloads)
{
    std::string value;
    for (const std::string &file : preloads)
        value += file + ':';
    value += libraryPath();
    if (const char *before = std::getenv("LD_PRELOAD"); before && *before)
        value += std::string(":") + before;
    ::setenv("LD_PRELOAD", value.c_str(), 1);
    ::setenv("SIMCAM_DIR", fs::absolute(dir).c_str(), 1);
}

int runProgram(const std::string &dir, const Arguments &preloads, const Arguments &program)
{
    // Held back until the child is known, so that none gets lost.
    sigset_t passed;
    sigset_t before;
    sigemptyset(&passed);
    for (const int signal : kPassedSignals)
        sigaddset(&passed, signal);
    sigprocmask(SIG_BLOCK, &passed, &before);

    const pid_t child = ::fork();
    if (child < 0)
        throw UserError(std::string("fork: ") + std::strerror(errno));
    if (child == 0) {
        sigprocmask(SIG_SETMASK, &before, nullptr);
        setEnvironment(dir, preloads);
        std::vector<char *> argv;
        for (const std::string &argument : program)
            argv.push_back(const_cast<char *>(argument.c_str()));
        argv.push_back(nullptr);
        ::execvp(argv[0], argv.data());
        std::fprintf(stderr, "simcam: %s: %s\n", argv[0], std::strerror(errno));
        ::_exit(kNotFound);
    }
    g_child = child;
    struct sigaction action{};
    action.sa_sigaction = passOn;
    action.sa_flags = SA_SIGINFO | SA_RESTART;
    for (const int signal : kPassedSignals)
        sigaction(signal, &action, nullptr);
    sigprocmask(SIG_SETMASK, &before, nullptr);

    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

/// The directory of one run; removed at the end if it was made for it.
struct Session
{
    std::string dir;
    bool isTemporary;

    ~Session()
    {
        std::error_code error;
        if (isTemporary)
            fs::remove_all(dir, error);
    }
};

} // namespace

int runCommand(std::string dir, Arguments arguments)
{
    const auto separator = std::find(arguments.begin(), arguments.end(), "--");
    if (separator == arguments.end() || separator + 1 == arguments.end())
        throw UserError("run: give -- and the program after the options");
    const Arguments program(separator + 1, arguments.end());
    arguments.erase(separator, arguments.end());

    Arguments preloads;
    for (std::string file; !(file = takeOption(arguments, "--preload")).empty();)
        preloads.push_back(file);
    const bool startsUnplugged = takeFlag(arguments, "--unplugged");
    const PlugOptions options = takePlugOptions(arguments);
    expectNoMore(arguments);
    libraryPath();

    const Session session{dir.empty() ? freshDirectory() : dir, dir.empty()};
    std::string node;
    if (!startsUnplugged)
        node = plug(session.dir, options);
    else
        fs::create_directories(session.dir + "/dev");
    const int status = runProgram(session.dir, preloads, program);
    for (const std::string &left : pluggedCameras(session.dir))
        if (session.isTemporary || left == node)
            unplug(session.dir, left);
    return status;
}

} // namespace meridax::simcam
