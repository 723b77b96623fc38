#include "settings.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace ZetoCameraLibrary {
namespace {

std::string trimmed(const std::string& text)
{
    const char* blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// `simulator.demo` gives `ZETO_SIMULATOR_DEMO`.
std::string variableName(const std::string& key)
{
    std::string name = "ZETO_";
    for (const char c : key)
        name += c == '.' ? '_' : static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return name;
}

} // namespace

Settings::Settings(std::istream& file)
{
    std::string line;
    while (std::getline(file, line)) {
        line = trimmed(line);
        const auto equals = line.find('=');
        if (equals != std::string::npos && std::string("#;[").find(line.front()) == std::string::npos)
            m_file[trimmed(line.substr(0, equals))] = trimmed(line.substr(equals + 1));
    }
}

Settings Settings::ofProcess()
{
    const char* path = std::getenv("ZETO_CAMERAS_INI");
    std::ifstream file(path ? path : "");
    return Settings(file);
}

std::string Settings::text(const std::string& key) const
{
    if (const char* value = std::getenv(variableName(key).c_str()))
        return value;
    const auto found = m_file.find(key);
    return found == m_file.end() ? "" : found->second;
}

int Settings::number(const std::string& key) const
{
    const std::string value = text(key);
    int number = 0;
    std::from_chars(value.data(), value.data() + value.size(), number);
    return number;
}

std::vector<std::string> Settings::list(const std::string& key) const
{
    std::string value = text(key);
    std::replace(value.begin(), value.end(), ',', ' ');
    std::istringstream words(value);
    return {std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()};
}

} // namespace ZetoCameraLibrary
