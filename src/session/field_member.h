// How a row of the book of fields reaches its member of the session's state, whatever the member's type.
#pragma once

#include <type_traits>

#include "session/field_book.h"

namespace lorvane::detail {

template <auto... Path>
auto& reach(SessionState& state, int index) {
    auto& member = (state.*....*Path);
    if constexpr (requires { member(index); })
        return member(index);
    else
        return member;
}

template <typename Value>
constexpr FieldKind kindOf() {
    if constexpr (std::is_same_v<Value, bool>)
        return FieldKind::flag;
    else if constexpr (std::is_same_v<Value, std::string>)
        return FieldKind::text;
    else if constexpr (std::is_enum_v<Value>)
        return FieldKind::choice;
    else
        return std::is_integral_v<Value> ? FieldKind::whole : FieldKind::number;
}

template <typename Value>
FieldValue valueOf(const Value& value) {
    if constexpr (kindOf<Value>() == FieldKind::flag || kindOf<Value>() == FieldKind::text)
        return value;
    else
        return static_cast<double>(value);
}

template <typename Value>
Value memberValue(const FieldValue& value) {
    if constexpr (kindOf<Value>() == FieldKind::flag || kindOf<Value>() == FieldKind::text)
        return std::get<Value>(value);
    else if constexpr (kindOf<Value>() == FieldKind::number)
        return std::get<double>(value);
    else
        return static_cast<Value>(static_cast<int>(std::get<double>(value)));
}

}  // namespace lorvane::detail

namespace lorvane {

/// The member at the end of a path of pointers to members: memberAt<&SessionState::study, &Study::txtd>().
template <auto... Path>
constexpr FieldMember memberAt() {
    using Value = std::remove_reference_t<decltype(detail::reach<Path...>(std::declval<SessionState&>(), 1))>;
    return {detail::kindOf<Value>(),
            [](const SessionState& state, int index) {
                return detail::valueOf(detail::reach<Path...>(const_cast<SessionState&>(state), index));
            },
            [](SessionState& state, int index, const FieldValue& value) {
                detail::reach<Path...>(state, index) = detail::memberValue<Value>(value);
            }};
}

}  // namespace lorvane
