#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tw::bench {

using Work = std::function<void()>;

/** Two amounts of one unit: seconds, or bytes. */
struct Comparison
{
    double measured = 0;
    double reference = 0;

    [[nodiscard]] double ratio() const { return measured / reference; }
};

/** Which of several runs counts. */
enum class Counted
{
    /** The best of each side: for what keeps a processor busy. */
    Best,
    /** The two neighbouring runs of middle ratio: for what waits for a medium whose pace changes meanwhile.
     */
    MiddlePair,
};

struct Runs
{
    int repetitions = 1;
    Counted counted = Counted::Best;
};

/** What is timed, and what comes before every run of it and takes no time. */
struct Timed
{
    Work work;
    Work prepare = [] {};
};

/**
 * Runs the reference and what is measured against it in turn, so that a load on the machine meets both, after
 * one run of each that does not count.
 */
[[nodiscard]] Comparison compare(const Runs& runs, const Timed& reference, const Timed& measured);

/** Prints one line a figure to standard output as they come, and knows whether all reached their aims. */
class ResultTable
{
public:
    void addTitle(const QString& title);
    /** Without an aim a figure is only told. */
    void addTimes(
        const QString& what, const QString& reference, const Comparison& times, std::optional<double> aim);
    void addSizes(
        const QString& what, const QString& reference, const Comparison& sizes, std::optional<double> aim);

    [[nodiscard]] bool areAimsReached() const { return m_areAimsReached; }

private:
    void addLine(
        const QString& what, const QString& reference, const QString& amounts, double ratio,
        std::optional<double> aim);

    bool m_areAimsReached = true;
};

} // namespace tw::bench
