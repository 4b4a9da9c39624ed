// Random edits over every command class, for property tests.
#pragma once

#include "core/project/Project.h"
#include "core/undo/Command.h"

#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace tw::test {

/** Makes random commands for a project that holds every kind of object. Seeded, so that a failure repeats. */
class RandomCommands
{
public:
    RandomCommands(core::project::Project& project, quint32 seed);

    /** A command of a class picked at random; it is not run. */
    [[nodiscard]] std::unique_ptr<core::undo::Command> next();

    [[nodiscard]] std::size_t classCount() const { return m_makers.size(); }
    /** How many classes have come up so far. */
    [[nodiscard]] std::size_t usedClassCount() const;

    [[nodiscard]] int number(int least, int most);
    [[nodiscard]] bool chance() { return number(0, 1) == 1; }
    [[nodiscard]] QString text();

private:
    using Maker = std::function<std::unique_ptr<core::undo::Command>()>;

    struct CountedMaker
    {
        Maker make;
        int uses = 0;
    };

    void add(Maker maker) { m_makers.push_back({std::move(maker)}); }
    template <class Command>
    void addField();
    void addObjectCommands();
    void addDocumentCommands();
    void addCodexCommands();
    void addTimelineCommands();
    void addMapCommands();
    void addTaskCommands();
    void addSheetCommands();
    void addLanguageCommands();
    void addBoardCommands();
    void addProjectCommands();

    [[nodiscard]] core::ContentId anyId();
    [[nodiscard]] core::CategoryId anyCategory();
    template <class Owner>
    [[nodiscard]] Owner* anyOwner();

    core::project::Project& m_project;
    std::mt19937 m_random;
    std::vector<CountedMaker> m_makers;
};

/** Puts a few objects of every kind and some categories into an empty project. */
void fillWithEveryKind(core::project::Project& project);

} // namespace tw::test
