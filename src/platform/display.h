#pragma once

#include <vector>

namespace qinghe {

/// The arguments for the application, with the display that it shall use. The program places its windows itself, which
/// a desktop lets only X programs do: where a desktop offers both, X is taken. A platform that somebody has named
/// (QT_QPA_PLATFORM, -platform) stays.
class ApplicationArguments {
public:
    ApplicationArguments(int argc, char** argv);

    /// Both must outlive the application, which takes away what it has understood.
    int& count() { return m_count; }
    char** values() { return m_values.data(); }

private:
    std::vector<char*> m_values;
    int m_count;
};

/// Stands while the application is made: where its display is missing or cannot be reached, the process ends with code
/// 1 and says on its standard error, in Chinese, what is missing and what helps.
class DisplayWatch {
public:
    DisplayWatch();
    ~DisplayWatch();
    DisplayWatch(const DisplayWatch&) = delete;
    DisplayWatch& operator=(const DisplayWatch&) = delete;
};

} // namespace qinghe
