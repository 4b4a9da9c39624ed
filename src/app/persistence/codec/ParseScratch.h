#pragma once

#include "app/persistence/codec/TextPool.h"
#include "app/persistence/json/JsonTree.h"

namespace tw::app::persistence {

/** What parsing needs besides the bytes, kept from file to file so that each costs less. For one thread at a
 * time. */
struct ParseScratch
{
    TextPool texts;
    JsonTree tree;
};

} // namespace tw::app::persistence
