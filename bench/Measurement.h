#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tw::bench {

using Work = std::function<void()>;

/** The best of several runs, in seconds. */
struct Comparison
{
    double measured = 0;
    double reference = 0;

    [[nodiscard]] double ratio() const { return measured / reference; }
};

/**
 * Runs the reference and what is measured against it in turn, so that a load on the machine meets both, after
 * one run of each that does not count. `prepare` comes before every run of what is measured and takes no
 * time.
 */
[[nodiscard]] Comparison compare(
    int repetitions, const Work& reference, const Work& measured, const Work& prepare = [] {});

/** Prints one line a figure to standard output as they come, and knows whether all reached their aims. */
class ResultTable
{
public:
    void addTitle(const QString& title);
    void addTimes(const QString& what, const QString& reference, const Comparison& times, double aim);
    /** Sizes in bytes; no aim for what is only told. */
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
