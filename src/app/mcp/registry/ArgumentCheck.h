#pragma once

#include "app/mcp/registry/McpToolSpec.h"
#include "core/foundation/Result.h"

#include <optional>

namespace tw::app::mcp {

/** None for anything but a number without a fraction within 64 bits; 3.0 is one. */
[[nodiscard]] std::optional<qint64> wholeNumber(const QJsonValue& value);
/** None for anything but a finite number. */
[[nodiscard]] std::optional<double> finiteNumber(const QJsonValue& value);

/**
 * What a tool's schema asks of the arguments of a call. Checked before the handler runs, which then reads
 * without looking twice:
 *
 * - required arguments must be there: absent, null and of the wrong type are all missing
 *   ("create_entity needs "name" and "category".");
 * - `subject`, when there is one, or "id" must be there ("get_entity needs "name" (or "id").");
 * - optional ones must be null or of their type (""index" must be a whole number.");
 * - a choice must be one of its words ("Unknown "action" 'x'; use add (default), remove, or promote.").
 *
 * Unknown arguments are passed over. Of what the handler refuses in words of its own, a choice need only be
 * there and of its type, and anything else may be missing.
 */
class ArgumentRules
{
public:
    ArgumentRules(const McpToolSpec& spec, QString subject, const QStringList& refusedByHandler = {});

    /** The message is for the model. */
    [[nodiscard]] core::Result<void> check(const QJsonObject& arguments) const;

private:
    QString m_tool;
    QString m_subject;
    QJsonObject m_properties;
    QStringList m_required;
};

/** "a", "a and b", "a, b, and c"; with `conjunction` "or", "a, b, or c". */
[[nodiscard]] QString enumerated(const QStringList& parts, const QString& conjunction);

} // namespace tw::app::mcp
