#pragma once

#include "core/foundation/Id.h"

#include <QString>

class QMenu;

namespace tw::desktop::proofreading {

class ProofreadingService;

/** The language of a dictionary in its own words, with its country where it names one. */
[[nodiscard]] QString languageTitle(const QString& code);

/** Fills the menu with the languages that the document can be checked in. The service must outlive the menu.
 */
void fillLanguageMenu(QMenu& menu, ProofreadingService& service, const core::ContentId& document);

} // namespace tw::desktop::proofreading
