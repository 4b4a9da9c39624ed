#pragma once

#include <QString>
#include <QStringView>

#include <vector>

/**
 * Screenplays as plain text in the Fountain way: what a line is follows from how it is written and from the
 * lines around it, and a mark at its beginning says so where that would mislead. Pure functions, linear in
 * the text.
 */
namespace tw::core::document::screenplay {

enum class Element
{
    /** Between the others; an empty line. */
    Blank,
    /** "INT. HOUSE - DAY"; forced by ".". */
    SceneHeading,
    /** What is seen and heard; forced by "!". */
    Action,
    /** Who speaks, in capitals; forced by "@". */
    Character,
    /** What a character says: below a character or a parenthetical. */
    Dialogue,
    /** "(quietly)": between a character and what is said. */
    Parenthetical,
    /** "CUT TO:", in capitals; forced by ">". */
    Transition,
};

/** The elements that a writer chooses from, in the order in which Tab goes through them. */
[[nodiscard]] const std::vector<Element>& chosenElements();

/** Whether the line is written in capitals in this element. */
[[nodiscard]] bool isCapitalised(Element element);

/** The element of each line of the text. */
[[nodiscard]] std::vector<Element> elementsOf(const std::vector<QStringView>& lines);

/** The element of a line by itself and the lines around it. `above` is what the line above was found to be.
 */
[[nodiscard]] Element elementOf(QStringView line, Element above, bool isBlankBelow);

/** How many characters of the line are the mark that forces its element: 0 or 1. */
[[nodiscard]] qsizetype markLength(QStringView line, Element element);

/**
 * The line as it is written in another element: capitals where those are usual, parentheses, and a mark only
 * where the line would not be read as the element without. Dialogue needs a character above and cannot be
 * forced.
 */
[[nodiscard]] QString rewrittenAs(QStringView line, Element present, Element wanted);

/** What Return begins below an element. */
[[nodiscard]] Element elementAfter(Element element);
/** Whether an empty line stands between an element and the one that follows it. */
[[nodiscard]] bool isPartedFrom(Element element, Element next);

} // namespace tw::core::document::screenplay
