#pragma once

#include "app/persistence/codec/ValueCodec.h"

#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

/**
 * Records, described once for reading and for writing: `RecordOf<Footnote>::entries` is a tuple of entries,
 * each a key, the rule by which it is written, and the way to the member. Both directions walk this list, so
 * that neither can forget what the other knows; files have their keys in its order.
 */
namespace tw::app::persistence {

template <class Record>
struct RecordOf;

template <class Record>
concept DescribedRecord = requires
{
    RecordOf<Record>::entries;
};

enum class Written
{
    Always,
    IfSet, ///< Left out when empty, which has to be what a fresh record holds.
    Never, ///< Another spelling, which is only read.
};

template <class Access>
struct Entry
{
    QLatin1StringView key;
    Written written;
};

/** A data member, or one inside others: Data<&MapPin::position, &MapPoint::x>. */
template <auto... Path>
struct Data;

template <auto Member>
struct Data<Member>
{
    static const auto& get(const auto& record) { return record.*Member; }
    static void edit(auto& record, auto change) { change(record.*Member); }
};

template <auto Outer, auto Inner>
struct Data<Outer, Inner>
{
    static const auto& get(const auto& record) { return record.*Outer.*Inner; }
    static void edit(auto& record, auto change) { change(record.*Outer.*Inner); }
};

/** A value behind a getter and a setter. */
template <auto Get, auto Set>
struct Property
{
    static decltype(auto) get(const auto& record) { return (record.*Get)(); }
    static void edit(auto& record, auto change)
    {
        std::remove_cvref_t<decltype(get(record))> value = get(record);
        change(value);
        (record.*Set)(std::move(value));
    }
};

/** One member of a value behind a getter and a setter. */
template <auto Get, auto Set, auto Member>
struct Part
{
    static const auto& get(const auto& record) { return (record.*Get)().*Member; }
    static void edit(auto& record, auto change)
    {
        auto whole = (record.*Get)();
        change(whole.*Member);
        (record.*Set)(std::move(whole));
    }
};

template <class Access>
constexpr Entry<Access> always(QLatin1StringView key)
{
    return {key, Written::Always};
}

template <class Access>
constexpr Entry<Access> ifSet(QLatin1StringView key)
{
    return {key, Written::IfSet};
}

template <class Access>
constexpr Entry<Access> alsoRead(QLatin1StringView key)
{
    return {key, Written::Never};
}

/** Writes the members of the record into the object that the writer has open. */
template <class Record>
void writeEntries(JsonWriter& writer, const Record& record)
{
    const auto writeEntry = [&]<class Access>(const Entry<Access>& entry) {
        decltype(auto) value = Access::get(record);
        using Codec = ValueCodec<std::remove_cvref_t<decltype(value)>>;
        if (entry.written == Written::Never || (entry.written == Written::IfSet && !Codec::isSet(value)))
            return;
        writer.key(entry.key);
        Codec::write(writer, value);
    };
    std::apply([&](const auto&... entries) { (writeEntry(entries), ...); }, RecordOf<Record>::entries);
}

/** The values of a record's entries in an object, in the order of the entries; none where there is no value.
 */
template <class Record>
[[nodiscard]] auto valuesOfEntries(const JsonNode& object)
{
    constexpr std::size_t count = std::tuple_size_v<decltype(RecordOf<Record>::entries)>;
    constexpr std::array<QLatin1StringView, count> keys = std::apply(
        [](const auto&... entries) { return std::array{entries.key...}; }, RecordOf<Record>::entries);
    std::array<JsonNode, count> values;
    // Our own files have their keys in the order of the entries: nearly always the next one is it.
    std::size_t expected = 0;
    object.forEachMember([&](const JsonNode& key, const JsonNode& value) {
        for (std::size_t step = 0; step < count; ++step) {
            const std::size_t index = (expected + step) % count;
            if (!key.isText(keys[index]))
                continue;
            values[index] = value;
            expected = index + 1;
            return;
        }
    });
    return values;
}

/** Reads what the object has of the record's members; the others stay as they are. */
template <class Record>
void readEntries(const JsonNode& object, Record& record, TextPool& texts)
{
    const auto values = valuesOfEntries<Record>(object);
    std::size_t index = 0;
    const auto readEntry = [&]<class Access>(const Entry<Access>&) {
        const JsonNode& json = values[index++];
        if (!json.exists() || json.isNull())
            return;
        Access::edit(record, [&]<class Value>(Value& value) { ValueCodec<Value>::read(json, value, texts); });
    };
    std::apply([&](const auto&... entries) { (readEntry(entries), ...); }, RecordOf<Record>::entries);
}

template <DescribedRecord Record>
struct ValueCodec<Record>
{
    static void write(JsonWriter& writer, const Record& record)
    {
        writer.beginObject();
        writeEntries(writer, record);
        writer.endObject();
    }
    static bool isSet(const Record& record) { return !(record == Record()); }
    static bool read(const JsonNode& json, Record& record, TextPool& texts)
    {
        if (!json.isObject())
            return false;
        readEntries(json, record, texts);
        return true;
    }
};

} // namespace tw::app::persistence
