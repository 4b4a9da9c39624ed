// A small invented world in which every kind of object refers to others, with the same ids each time it is
// made.
#pragma once

#include "core/project/Project.h"

namespace tw::test {

/** What the tests name of it. */
struct SampleWorld
{
    core::CategoryId characters;
    core::CategoryId nobles;
    core::CategoryId places;
    /** Hangs under the entity Vaertis. */
    core::CategoryId cities;
    core::ContentId marda;
    core::ContentId mardana;
    core::ContentId tom;
    core::ContentId vaertis;
    core::ContentId salthaven;
    core::ContentId chapter;
    core::ContentId scene;
    core::ContentId event;
    core::ContentId map;
    core::ContentId canvas;
    core::ContentId comment;
    core::ContentId language;
    core::ContentId task;
    core::ContentId portrait;
};

/** The ids are known before anything is made. */
[[nodiscard]] SampleWorld sampleWorldIds();

/** Fills an empty project. Marda is referred to from everything that can refer to an entity. */
void fillSampleWorld(core::project::Project& project);

} // namespace tw::test
