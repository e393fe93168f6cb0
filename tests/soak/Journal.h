#pragma once

#include <string>

namespace tarnwick::soak {

/// A setting of the test, from the environment.
[[nodiscard]] std::string setting(const char* name, const char* otherwise);

/// The lines by which the checker knows what the lists may be: each is in the file when `write` returns.
class Journal {
public:
    explicit Journal(const std::string& path);
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    void write(const std::string& line);

private:
    int descriptor_;
};

} // namespace tarnwick::soak
