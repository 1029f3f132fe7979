#include "RatioReport.h"

#include <cstdio>

void RatioReport::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        const bool single = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
        if (single || run.aggregate_name == "median")
            m_milliseconds[run.run_name.function_name + "/" + run.run_name.args] =
                run.GetAdjustedRealTime();
    }
}

void RatioReport::Finalize()
{
    std::printf("\n%-22s %-6s %10s %12s %16s\n", "path", "rows", "ms/frame", "x memcpy",
                "x bare calls");
    for (const auto &[name, ms] : m_milliseconds) {
        const auto slash = name.find('/');
        const std::string rows = name.substr(slash + 1);
        const auto memcpyMs = m_milliseconds.find("memcpy/" + rows);
        const auto bareMs = m_milliseconds.find("bare calls/" + rows);
        const auto ratio = [ms = ms](auto found, auto end) {
            return found == end ? 0.0 : ms / found->second;
        };
        std::printf("%-22s %-6s %10.3f %12.2f %16.2f\n", name.substr(0, slash).c_str(),
                    rows.c_str(), ms, ratio(memcpyMs, m_milliseconds.end()),
                    ratio(bareMs, m_milliseconds.end()));
    }
}
