#pragma once

#include <clocale>
#include <string>

/// Keeps the C library's locale as the host has it: an application object sets the user's for the
/// whole process. Meanwhile numbers are written and read the way of the C locale, as companion
/// libraries expect.
class ProcessLocale
{
public:
    ProcessLocale() : m_saved(std::setlocale(LC_ALL, nullptr)) {}
    ProcessLocale(const ProcessLocale&) = delete;
    ProcessLocale& operator=(const ProcessLocale&) = delete;
    ~ProcessLocale() { std::setlocale(LC_ALL, m_saved.c_str()); }

    /// To be called when the application object has been made.
    static void useCNumbers() { std::setlocale(LC_NUMERIC, "C"); }

private:
    const std::string m_saved;
};
