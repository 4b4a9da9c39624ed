#include "app/spreadsheet/CalculationOrder.h"

#include <QHash>

#include <algorithm>

namespace tw::app::spreadsheet {

namespace {

/**
 * Strongly connected components, by Tarjan ("Depth-First Search and Linear Graph Algorithms", 1972), with a
 * stack of its own in place of recursion. Components come out with dependents first.
 */
class ComponentSearch
{
public:
    explicit ComponentSearch(const DependencyIndex& dependencies)
        : m_dependencies(dependencies)
    {}

    void startAt(CellPosition root)
    {
        if (!m_visits.contains(keyOf(root)))
            enter(root);
        while (!m_path.empty()) {
            PathStep& step = m_path.back();
            if (step.next == step.dependents.size()) {
                leave();
                continue;
            }
            const CellPosition dependent = step.dependents[step.next++];
            const auto visit = m_visits.constFind(keyOf(dependent));
            if (visit == m_visits.cend())
                enter(dependent);
            else if (visit->isOpen)
                step.lowest = std::min(step.lowest, visit->number);
        }
    }

    std::vector<CalculationStep> takeOrder()
    {
        std::ranges::reverse(m_steps);
        return std::move(m_steps);
    }

private:
    struct Visit
    {
        qsizetype number = 0;
        /** Not yet in a component. */
        bool isOpen = true;
    };

    struct PathStep
    {
        CellPosition position;
        std::vector<CellPosition> dependents;
        std::size_t next = 0;
        qsizetype number = 0;
        /** The earliest open cell that can be reached. */
        qsizetype lowest = 0;
    };

    void enter(CellPosition position)
    {
        const qsizetype number = m_visits.size();
        m_visits.insert(keyOf(position), {number, true});
        m_open.push_back(position);
        m_path.push_back({position, m_dependencies.dependentsOf(position), 0, number, number});
    }

    void leave()
    {
        const PathStep step = std::move(m_path.back());
        m_path.pop_back();
        if (!m_path.empty())
            m_path.back().lowest = std::min(m_path.back().lowest, step.lowest);
        if (step.lowest == step.number)
            close(step);
    }

    /** Everything that was opened since the step is its component. */
    void close(const PathStep& step)
    {
        const bool isAlone = m_open.back() == step.position;
        const bool isInCycle =
            !isAlone || std::ranges::find(step.dependents, step.position) != step.dependents.end();
        CellPosition position;
        do {
            position = m_open.back();
            m_open.pop_back();
            m_visits[keyOf(position)].isOpen = false;
            m_steps.push_back({position, isInCycle});
        } while (!(position == step.position));
    }

    const DependencyIndex& m_dependencies;
    QHash<quint64, Visit> m_visits;
    std::vector<CellPosition> m_open;
    std::vector<PathStep> m_path;
    std::vector<CalculationStep> m_steps;
};

} // namespace

std::vector<CalculationStep> calculationOrder(
    const DependencyIndex& dependencies, const std::vector<CellPosition>& cells)
{
    ComponentSearch search(dependencies);
    for (const CellPosition position : cells)
        search.startAt(position);
    return search.takeOrder();
}

} // namespace tw::app::spreadsheet
