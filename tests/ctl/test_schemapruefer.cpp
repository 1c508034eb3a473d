#include "schemapruefer.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace varnoth::pruefung {

namespace {

using testing::HasSubstr;

constexpr const char* Beschreibung = R"({
    "oneOf": [{"$ref": "#/$defs/thing"}, {"type": "object", "required": ["k"], "properties": {"k": {"const": "other"}}}],
    "$defs": {"thing": {
        "type": "object", "required": ["k", "n"], "additionalProperties": false,
        "properties": {
            "k": {"const": "thing"},
            "n": {"type": "integer", "minimum": 1, "maximum": 4},
            "t": {"type": ["string", "null"], "pattern": "^a"},
            "e": {"enum": ["x", "y"]},
            "l": {"type": "array", "minItems": 1, "maxItems": 2, "items": {"type": "boolean"}}}}}})";

std::string Mangel(const char* wert) {
    const Schemapruefer pruefer(QJsonDocument::fromJson(Beschreibung).object());
    return pruefer.Mangel(QJsonDocument::fromJson(wert).object());
}

} // namespace

TEST(SchemaPruefung, Lets_pass_what_fits) {
    EXPECT_EQ(Mangel(R"({"k": "thing", "n": 4, "t": "abc", "e": "y", "l": [true, false]})"), "");
    EXPECT_EQ(Mangel(R"({"k": "thing", "n": 1, "t": null})"), "");
    EXPECT_EQ(Mangel(R"({"k": "other", "whatever": 1})"), "");
}

TEST(SchemaPruefung, Finds_each_thing_that_does_not_fit) {
    const std::pair<const char*, const char*> faelle[] = {
        {R"({"k": "thing"})", "has no n"},
        {R"({"k": "thing", "n": 5})", "$.n: [5] is not allowed"},
        {R"({"k": "thing", "n": 0})", "$.n: [0] is not allowed"},
        {R"({"k": "thing", "n": 1.5})", "$.n: is no [\"integer\"]"},
        {R"({"k": "thing", "n": "1"})", "$.n: is no [\"integer\"]"},
        {R"({"k": "thing", "n": 1, "t": "b"})", "$.t: [\"b\"] is not allowed"},
        {R"({"k": "thing", "n": 1, "t": 3})", "$.t: is no"},
        {R"({"k": "thing", "n": 1, "e": "z"})", "$.e: is none of"},
        {R"({"k": "thing", "n": 1, "l": []})", "$.l: has 0 elements"},
        {R"({"k": "thing", "n": 1, "l": [true, true, true]})", "$.l: has 3 elements"},
        {R"({"k": "thing", "n": 1, "l": [1]})", "$.l[0]: is no"},
        {R"({"k": "thing", "n": 1, "new": 1})", "has a field new"},
        {R"({"k": "none"})", "fits 0 descriptions"},
    };
    for (const auto& [wert, grund] : faelle)
        EXPECT_THAT(Mangel(wert), HasSubstr(grund)) << wert;
}

TEST(SchemaPruefung, Passes_over_no_word_that_it_does_not_know) {
    const Schemapruefer pruefer(QJsonDocument::fromJson(R"({"multipleOf": 3})").object());
    EXPECT_THROW(static_cast<void>(pruefer.Mangel(QJsonObject())), std::runtime_error);
    const Schemapruefer ohneZiel(QJsonDocument::fromJson(R"({"$ref": "#/$defs/none"})").object());
    EXPECT_THROW(static_cast<void>(ohneZiel.Mangel(QJsonObject())), std::runtime_error);
}

} // namespace varnoth::pruefung
