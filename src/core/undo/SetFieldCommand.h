#pragma once

#include "core/undo/Command.h"

#include <concepts>
#include <optional>
#include <type_traits>
#include <utility>

namespace tw::core::undo {

namespace detail {

template <class Getter>
struct GetterTraits;

template <class OwnerType, class ReturnType>
struct GetterTraits<ReturnType (OwnerType::*)() const>
{
    using Owner = OwnerType;
    using Value = std::remove_cvref_t<ReturnType>;
};

/** Tells the owner that it changed: an object its revision, the project its settings. */
template <class Owner>
void noteChange(Owner& owner)
{
    if constexpr (requires { owner.touch(); })
        owner.touch();
    else
        owner.touchSettings();
}

} // namespace detail

/**
 * The command that sets one field of one object: deduces the owner and the value from the getter, refers to
 * the owner, owns the new value and captures the old one whenever it runs. Subclasses give the label.
 */
template <auto Get, auto Set>
class SetFieldCommand : public Command
{
public:
    using Owner = typename detail::GetterTraits<decltype(Get)>::Owner;
    using Value = typename detail::GetterTraits<decltype(Get)>::Value;

    SetFieldCommand(Owner& owner, Value value)
        : m_owner(owner)
        , m_newValue(std::move(value))
    {}

    void redo() override
    {
        m_oldValue = (m_owner.*Get)();
        (m_owner.*Set)(m_newValue);
        detail::noteChange(m_owner);
    }

    void undo() override
    {
        if (!m_oldValue)
            return;
        (m_owner.*Set)(*std::exchange(m_oldValue, std::nullopt));
        detail::noteChange(m_owner);
    }

protected:
    [[nodiscard]] const Value& newValue() const { return m_newValue; }

private:
    Owner& m_owner;
    Value m_newValue;
    std::optional<Value> m_oldValue;
};

} // namespace tw::core::undo
