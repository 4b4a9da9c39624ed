#pragma once

#include <QIcon>
#include <QString>

#include <vector>

namespace tw::desktop::finder {

/** Something that can be chosen. */
struct FinderRow
{
    QIcon icon;
    QString text;
    /** Quietly behind the text: where it stands. */
    QString place;
    /** Quietly at the end of the row: keys, or where it comes from. */
    QString note;
    /** One that cannot be chosen now is shown all the same, to be known. */
    bool isAvailable = true;
};

enum class FinderTarget
{
    Here,
    /** Beside what is shown now, where that makes a difference. */
    OtherPane,
};

/** What a finder offers, and does when something is chosen. Outlives the popup that shows it. */
class FinderSource
{
public:
    virtual ~FinderSource() = default;

    /** What is found here; names the popup. */
    [[nodiscard]] virtual QString title() const = 0;
    /** In the empty line: what to type, and the keys worth knowing. */
    [[nodiscard]] virtual QString hint() const = 0;
    /** Instead of an empty list. */
    [[nodiscard]] virtual QString emptyText(const QString& typed) const = 0;

    /** What fits the text typed, the best first. */
    [[nodiscard]] virtual std::vector<FinderRow> rowsFor(const QString& typed) = 0;
    /** Does what the row of the last rowsFor() stands for. The popup is gone, the keyboard where it was. */
    virtual void choose(std::size_t row, FinderTarget target) = 0;
};

} // namespace tw::desktop::finder
