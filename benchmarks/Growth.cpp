// SPDX-License-Identifier: MIT
#include "benchmarks/CpuClock.h"
#include "benchmarks/Measurement.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Times {
    double read = 0;
    double write = 0;
};

Times MeasureSize(unsigned orders, unsigned largestOrders)
{
    Times best;
    Sample sample(orders, false);
    sample.GetObjects();
    const unsigned repetitions = 2 + std::min(18U, largestOrders / orders / 4);
    for (unsigned i = 0; i < repetitions; ++i) {
        KeepBest(best.write, SecondsOf([&] { sample.Write(Form::Xml); }));
        KeepBest(best.read, SecondsOf([&] { sample.Read(Form::Xml); }));
    }
    return best;
}

/// The largest size takes gigabytes, and a heap that held them would be another one than a fresh heap.
Times MeasureInChild(unsigned orders, unsigned largestOrders)
{
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::runtime_error("no pipe");
    }
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        int status = 1;
        try {
            const Times times = MeasureSize(orders, largestOrders);
            status = write(ends[1], &times, sizeof(times)) == sizeof(times) ? 0 : 1;
        } catch (...) {
            status = 1;
        }
        _exit(status);
    }
    close(ends[1]);
    Times times;
    const bool received = child > 0 && read(ends[0], &times, sizeof(times)) == sizeof(times);
    close(ends[0]);
    int status = 0;
    if (child > 0) {
        waitpid(child, &status, 0);
    }
    if (!received) {
        throw std::runtime_error("the growth could not be measured with " + std::to_string(orders) + " orders");
    }
    return times;
}

/// Slope of the straight line through the logarithms.
double Exponent(const std::vector<unsigned>& sizes, const std::vector<double>& seconds)
{
    const double count = static_cast<double>(sizes.size());
    double sumX = 0, sumY = 0, sumXX = 0, sumXY = 0;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const double x = std::log(static_cast<double>(sizes[i]));
        const double y = std::log(seconds[i]);
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}

void PrintTimes(const char* name, const std::vector<unsigned>& sizes, const std::vector<double>& seconds)
{
    std::printf("%-22s", name);
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        std::printf(" %10.2f", seconds[i] * 1e6 / sizes[i]);
    }
    std::printf("\n");
}

} // namespace

std::vector<NamedFigure> MeasureGrowth(const Effort& effort, const std::regex& filter)
{
    const std::vector<unsigned>& sizes = effort.growthOrders;
    if (sizes.empty() || !(std::regex_search("growth-read", filter) || std::regex_search("growth-write", filter))) {
        return {};
    }
    std::vector<double> read;
    std::vector<double> write;
    for (unsigned orders : sizes) {
        const Times times = MeasureInChild(orders, sizes.back());
        read.push_back(times.read);
        write.push_back(times.write);
    }
    std::printf("\n%-22s", "us per order, orders");
    for (unsigned orders : sizes) {
        std::printf(" %10u", orders);
    }
    std::printf("\n");
    PrintTimes("growth-read", sizes, read);
    PrintTimes("growth-write", sizes, write);
    return {{"growth-read", Exponent(sizes, read)}, {"growth-write", Exponent(sizes, write)}};
}
