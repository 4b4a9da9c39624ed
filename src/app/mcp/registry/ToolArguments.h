#pragma once

#include <QJsonObject>
#include <QStringList>

#include <optional>
#include <vector>

namespace tw::app::mcp {

/**
 * The arguments of one call, read leniently. They were checked against the tool's schema before the handler
 * ran, so that required ones are there and what is there is of its type; whatever else comes along reads as
 * absent.
 *
 * Absent and null are told apart by the readers that begin with "given": none for an absent argument, and an
 * empty value for null, which clears. All others read null as absent.
 */
class ToolArguments
{
public:
    ToolArguments() = default;
    explicit ToolArguments(QJsonObject values)
        : m_values(std::move(values))
    {}

    /** True for null as well. */
    [[nodiscard]] bool has(QStringView name) const { return m_values.contains(name); }
    [[nodiscard]] bool isNull(QStringView name) const { return m_values.value(name).isNull(); }
    /** The names of all arguments, for objects whose keys the caller chooses. */
    [[nodiscard]] QStringList names() const { return m_values.keys(); }

    [[nodiscard]] QString text(QStringView name, const QString& byDefault = {}) const;
    [[nodiscard]] std::optional<QString> givenText(QStringView name) const;

    [[nodiscard]] std::optional<qint64> integer(QStringView name) const;
    /** Clamped to a range, as is the default. */
    [[nodiscard]] qint64 integer(QStringView name, qint64 byDefault, qint64 least, qint64 most) const;
    /** Finite. */
    [[nodiscard]] std::optional<double> number(QStringView name) const;
    [[nodiscard]] bool boolean(QStringView name, bool byDefault = false) const;
    [[nodiscard]] std::optional<bool> givenBoolean(QStringView name) const;

    [[nodiscard]] QStringList textList(QStringView name) const;
    [[nodiscard]] std::optional<QStringList> givenTextList(QStringView name) const;
    /** The lists of a list of lists: rows of cells. */
    [[nodiscard]] std::vector<QStringList> textRows(QStringView name) const;
    [[nodiscard]] std::vector<double> numberList(QStringView name) const;

    /** Empty arguments when there is none. */
    [[nodiscard]] ToolArguments record(QStringView name) const;
    [[nodiscard]] std::vector<ToolArguments> records(QStringView name) const;

private:
    QJsonObject m_values;
};

} // namespace tw::app::mcp
