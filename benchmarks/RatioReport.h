#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Prints the usual console table, and after it each figure beside one memcpy of the same frame and
/// beside the bare library calls. Only ratios of one run say anything across machines.
class RatioReport : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    std::map<std::string, double> m_milliseconds; ///< by full name
};
