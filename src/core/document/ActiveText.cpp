#include "core/document/ActiveText.h"

#include "core/document/DocumentCommands.h"
#include "core/undo/CompositeCommand.h"

#include <algorithm>

namespace tw::core::document {

const DocumentVariant* activeVariant(const Document& document)
{
    const DocumentVariants& variants = document.variants();
    if (variants.active.isEmpty())
        return nullptr;
    const auto variant = std::ranges::find(variants.list, variants.active, &DocumentVariant::name);
    return variant == variants.list.end() ? nullptr : &*variant;
}

DocumentBody activeText(const Document& document)
{
    const DocumentVariant* const variant = activeVariant(document);
    return variant ? DocumentBody{variant->body, variant->bodyFormat} : document.body();
}

std::unique_ptr<undo::Command> makeSetActiveTextCommand(Document& document, DocumentBody text)
{
    const DocumentVariant* const variant = activeVariant(document);
    if (!variant)
        return std::make_unique<SetDocumentBodyCommand>(document, std::move(text));
    DocumentVariants variants = document.variants();
    DocumentVariant& edited =
        variants.list[static_cast<std::size_t>(variant - document.variants().list.data())];
    edited.body = std::move(text.text);
    edited.bodyFormat = text.format;
    // To the writer it is an edit of the text like any other.
    const QString label = SetDocumentBodyCommand(document, {}).text();
    auto command = std::make_unique<undo::CompositeCommand>(label);
    command->add(std::make_unique<SetDocumentVariantsCommand>(document, std::move(variants)));
    return command;
}

} // namespace tw::core::document
