#pragma once

#include "core/conlang/Language.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::conlang {

class SetLanguageCommand final : public undo::SetFieldCommand<&Language::details, &Language::setDetails>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetLanguageGrammarCommand final
    : public undo::SetFieldCommand<&Language::grammar, &Language::setGrammar>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetLanguageOrthographyCommand final
    : public undo::SetFieldCommand<&Language::orthography, &Language::setOrthography>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetLanguagePhonotacticsCommand final
    : public undo::SetFieldCommand<&Language::phonotactics, &Language::setPhonotactics>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetLanguageSoundChangesCommand final
    : public undo::SetFieldCommand<&Language::soundChanges, &Language::setSoundChanges>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetLanguageWritingSystemCommand final
    : public undo::SetFieldCommand<&Language::writingSystem, &Language::setWritingSystem>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

} // namespace tw::core::conlang
