#pragma once

#include <istream>
#include <map>
#include <string>
#include <vector>

namespace ZetoCameraLibrary {

/// What the user of the machine sets for the camera library. A setting such as `simulator.demo` comes from
/// the environment variable `ZETO_SIMULATOR_DEMO`, or else from the line `simulator.demo = 3000` of the
/// settings file, or else is empty.
class Settings
{
public:
    /// Settings of the environment alone.
    Settings() = default;

    /// Reads lines `key = value`; empty lines, lines that start with '#', ';' or '[' and lines without '='
    /// are passed over. Blanks around keys and values do not count.
    explicit Settings(std::istream& file);

    /// With the file that the environment variable `ZETO_CAMERAS_INI` names, if it can be read.
    static Settings ofProcess();

    std::string text(const std::string& key) const;

    /// 0 for what is no number.
    int number(const std::string& key) const;

    /// The parts of a text that is separated by commas or blanks.
    std::vector<std::string> list(const std::string& key) const;

private:
    std::map<std::string, std::string> m_file;
};

} // namespace ZetoCameraLibrary
