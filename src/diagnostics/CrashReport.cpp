#include "diagnostics/CrashReport.h"

#include <array>

namespace meridax::crash {

namespace {

struct ExceptionName
{
    std::uint32_t code;
    const char *name;
};

constexpr ExceptionName kExceptionNames[] = {
    {0x80000002, "DATATYPE_MISALIGNMENT"}, {0x80000004, "SINGLE_STEP"},
    {0xC0000005, "ACCESS_VIOLATION"},      {0xC0000006, "IN_PAGE_ERROR"},
    {0xC000001D, "ILLEGAL_INSTRUCTION"},   {0xC0000025, "NONCONTINUABLE_EXCEPTION"},
    {0xC0000026, "INVALID_DISPOSITION"},   {0xC000008C, "ARRAY_BOUNDS_EXCEEDED"},
    {0xC000008E, "FLT_DIVIDE_BY_ZERO"},    {0xC0000090, "FLT_INVALID_OPERATION"},
    {0xC0000091, "FLT_OVERFLOW"},          {0xC0000092, "FLT_STACK_CHECK"},
    {0xC0000093, "FLT_UNDERFLOW"},         {0xC0000094, "INT_DIVIDE_BY_ZERO"},
    {0xC0000095, "INT_OVERFLOW"},          {0xC0000096, "PRIV_INSTRUCTION"},
    {0xC00000FD, "STACK_OVERFLOW"},        {kCppException, "C++_EXCEPTION"},
};

/// One line of the report. One that does not fit its buffer is left out, not written in part.
class Line
{
public:
    Line &text(const char *text)
    {
        while (*text)
            append(*text++);
        return *this;
    }

    Line &decimal(unsigned value, int minDigits) { return number(value, 10, minDigits); }
    Line &hex(std::uint64_t value, int minDigits) { return number(value, 16, minDigits); }

    void writeTo(const ReportFile &file)
    {
        text("\r\n");
        if (!m_isTooLong)
            file.write(file.handle, m_buffer.data(), m_size);
    }

private:
    Line &number(std::uint64_t value, unsigned base, int minDigits)
    {
        std::array<char, 20> digits; // of the largest number
        int count = 0;
        do {
            digits[static_cast<std::size_t>(count++)] = "0123456789ABCDEF"[value % base];
            value /= base;
        } while (value > 0);
        for (int i = count; i < minDigits; ++i)
            append('0');
        while (count > 0)
            append(digits[static_cast<std::size_t>(--count)]);
        return *this;
    }

    void append(char c)
    {
        if (m_size < m_buffer.size())
            m_buffer[m_size++] = c;
        else
            m_isTooLong = true;
    }

    std::array<char, 512> m_buffer;
    std::size_t m_size = 0;
    bool m_isTooLong = false;
};

void writeTime(const ReportFile &file, std::chrono::sys_time<std::chrono::milliseconds> time)
{
    // The calendar of the standard library is plain arithmetic; gmtime_r() takes a lock.
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time - day);
    Line()
        .text("Timestamp:     ")
        .decimal(static_cast<unsigned>(static_cast<int>(date.year())), 4)
        .text("-")
        .decimal(static_cast<unsigned>(date.month()), 2)
        .text("-")
        .decimal(static_cast<unsigned>(date.day()), 2)
        .text("T")
        .decimal(static_cast<unsigned>(clock.hours().count()), 2)
        .text(":")
        .decimal(static_cast<unsigned>(clock.minutes().count()), 2)
        .text(":")
        .decimal(static_cast<unsigned>(clock.seconds().count()), 2)
        .text(".")
        .decimal(static_cast<unsigned>(clock.subseconds().count()), 3)
        .text("Z")
        .writeTo(file);
}

} // namespace

const char *exceptionName(std::uint32_t code)
{
    for (const ExceptionName &known : kExceptionNames) {
        if (known.code == code)
            return known.name;
    }
    return "UNKNOWN";
}

void writeOrigin(const ReportFile &file, std::chrono::sys_time<std::chrono::milliseconds> time,
                 std::uint32_t code, std::uintptr_t address)
{
    Line().text("=== Meridax Crash Report ===").writeTo(file);
    writeTime(file, time);
    Line()
        .text("ExceptionCode: 0x")
        .hex(code, 8)
        .text(" (")
        .text(exceptionName(code))
        .text(")")
        .writeTo(file);
    Line().text("ExceptionAddr: 0x").hex(address, 2 * sizeof address).writeTo(file);
}

void writeModule(const ReportFile &file, const char *name, std::uintptr_t offset)
{
    if (name) {
        Line()
            .text("Module:        ")
            .text(name)
            .text("+0x")
            .hex(static_cast<std::uint32_t>(offset), 1)
            .writeTo(file);
    } else {
        Line().text("Module:        <unbekannt>").writeTo(file);
    }
}

void writeBuild(const ReportFile &file, const char *version, const char *commit,
                const char *buildTime)
{
    Line().text("AppVersion:    ").text(version).writeTo(file);
    Line().text("AppCommit:     ").text(commit).writeTo(file);
    Line().text("BuildTime:     ").text(buildTime).writeTo(file);
    Line().writeTo(file);
    Line().text("--- Last 50 log lines ---").writeTo(file);
}

void writeLog(const ReportFile &file, LogWriter writer)
{
    if (writer && writer(file))
        Line().writeTo(file);
}

} // namespace meridax::crash
