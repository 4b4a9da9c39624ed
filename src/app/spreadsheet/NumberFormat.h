#pragma once

#include <QString>

#include <optional>

namespace tw::app::spreadsheet {

/**
 * A number as a pattern writes it: "0.00", "#,##0", "0%", with texts before and behind. "0" is a digit that
 * always stands, "#" one that stands when there is something to show, a comma among them groups thousands.
 * None when the pattern has no place for a digit, or more digits than a number has.
 */
[[nodiscard]] std::optional<QString> formatNumber(double number, QStringView pattern);

} // namespace tw::app::spreadsheet
