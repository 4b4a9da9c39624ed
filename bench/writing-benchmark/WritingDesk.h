#pragma once

#include "desktop/proofreading/ProofreadingService.h"
#include "tests/desktop/support/TestDesk.h"

namespace tw::bench {

/** A desk with one document, in a folder of its own. */
class WritingDesk : public test::TestDesk
{
public:
    WritingDesk();

    void setText(const QString& text);

    /** Spelling and style in all rules. The dictionary lacks one word in sixteen of what is written. */
    [[nodiscard]] std::unique_ptr<desktop::proofreading::ProofreadingService> makeProofreadingService();

    core::ContentId id;
};

} // namespace tw::bench
