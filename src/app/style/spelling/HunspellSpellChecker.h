#pragma once

#include "app/style/spelling/Dictionaries.h"
#include "app/style/spelling/SpellChecker.h"
#include "core/foundation/Result.h"

#include <memory>

namespace tw::app::style::spelling {

/**
 * An installed dictionary. The dictionary's library serves one caller at a time, so calls wait for each
 * other; what was asked once is remembered.
 */
class HunspellSpellChecker final : public SpellChecker
{
public:
    /** Reads the dictionary, which takes up to a second. Fails when its files cannot be read as one. */
    [[nodiscard]] static core::Result<std::shared_ptr<const HunspellSpellChecker>> open(
        const Dictionary& dictionary);
    ~HunspellSpellChecker() override;

    /** False for letters of other scripts than the dictionary's, and those its encoding has no place for. */
    [[nodiscard]] bool canJudge(const QString& word) const override;
    [[nodiscard]] bool isCorrect(const QString& word) const override;
    [[nodiscard]] QStringList suggestions(const QString& word) const override;

private:
    class Library;

    explicit HunspellSpellChecker(std::unique_ptr<Library> library);

    std::unique_ptr<Library> m_library;
};

} // namespace tw::app::style::spelling
