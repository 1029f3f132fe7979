#include "Links.h"

#include "StateFile.h"

#include <cctype>
#include <cstring>
#include <filesystem>
#include <map>

namespace meridax::simcam {

namespace {

namespace fs = std::filesystem;

/// As udev writes a name: what is no letter of ASCII, digit or sign of a path becomes "_".
std::string idName(const char *name)
{
    std::string text = "usb-";
    for (const char *c = name; *c; ++c)
        text +=
            std::isalnum(static_cast<unsigned char>(*c)) || std::strchr("#+-.:=@_", *c) ? *c : '_';
    return text + "-video-index0";
}

/// Replaces the links of a folder, each at once: programs read them at any time.
void update(const fs::path &folder, const std::map<std::string, std::string> &links)
{
    std::error_code error;
    fs::create_directories(folder, error);
    for (const auto &[name, node] : links) {
        const fs::path temporary = folder.parent_path() / (name + ".new");
        fs::remove(temporary, error);
        fs::create_symlink("../../" + node, temporary, error);
        fs::rename(temporary, folder / name, error);
    }
    for (const auto &entry : fs::directory_iterator(folder, error))
        if (!links.contains(entry.path().filename().string()))
            fs::remove(entry.path(), error);
}

} // namespace

void updateLinks(const std::string &dir, const std::vector<std::string> &nodes)
{
    std::map<std::string, std::string> byId;
    std::map<std::string, std::string> byPath;
    for (const std::string &node : nodes) {
        const State *state = mapState(dir, node);
        if (!state)
            continue;
        byId[idName(state->name)] = node;
        byPath["platform-simcam-usb-0:" + node.substr(std::strlen("video")) + ":1.0-video-index0"] =
            node;
    }
    update(fs::path(linkFolder(dir)) / "by-id", byId);
    update(fs::path(linkFolder(dir)) / "by-path", byPath);
}

} // namespace meridax::simcam
