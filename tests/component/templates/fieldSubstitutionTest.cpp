#include "templates/fieldSubstitution.h"
#include "component/templates/randomTemplate.h"
#include "support/randomSeed.h"
#include "templates/clsInsertFieldsInRTB.h"
#include "templates/unfoundFields.h"

#include <gtest/gtest.h>

#include <map>

namespace qncal::test {

namespace {

FieldListCollection listOf(const std::vector<PlainField>& fields)
{
    FieldListCollection list;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        FieldListRow row;
        row.key = static_cast<std::int32_t>(i) + 1;
        row.displayName = FieldText::owned(fields[i].name);
        row.dataType = fields[i].isDate ? MergeDataType::date : MergeDataType::text;
        list.addRow(std::move(row));
    }
    return list;
}

/// What was asked for, in order, with the values that were given.
struct Asked {
    std::vector<std::string> log;
    void add(std::size_t field, const std::string& format) { log.push_back(std::to_string(field) + " " + format); }
};

} // namespace

TEST(fieldSubstitutionTest, GivesWhatTryingEveryRowGives)
{
    const unsigned seed = randomSeed();
    RandomTemplate random(seed);
    for (int run = 0; run < 100000; ++run) {
        const auto fields = random.fields();
        std::vector<std::optional<std::string>> values;
        for (std::size_t i = 0; i < fields.size(); ++i)
            values.push_back(random.oneIn(5) ? std::nullopt : std::optional(random.text(fields, 3)));
        const std::string text = random.oneIn(4) ? random.denseText(20) : random.text(fields, 14);
        const bool richText = random.oneIn(2);
        const DelimiterPair& pair = random.oneIn(2) ? richDelimiters : plainDelimiters;

        std::string expected = text;
        Asked plainAsked;
        const bool expectedReplaced =
            plainPass(expected, pair, fields, richText, [&](std::size_t i, const auto& format) {
                plainAsked.add(i, format);
                return values[i];
            });
        std::string merged = text;
        Asked asked;
        FieldListCollection list = listOf(fields);
        const bool replaced = substituteFields(merged, pair, list, richText, [&](std::int32_t i, const auto& format) {
            asked.add(static_cast<std::size_t>(i), format);
            return values[static_cast<std::size_t>(i)];
        });
        ASSERT_EQ(merged, expected) << "seed " << seed << ", run " << run << ", template " << text;
        ASSERT_EQ(replaced, expectedReplaced) << "seed " << seed << ", run " << run;
        ASSERT_EQ(asked.log, plainAsked.log) << "seed " << seed << ", run " << run << ", template " << text;
    }
}

TEST(unfoundFieldsTest, RemovesWhatRemovingOneByOneRemoves)
{
    const unsigned seed = randomSeed();
    RandomTemplate random(seed);
    const std::vector<PlainField> fields{{"A", false}, {"", false}};
    for (int run = 0; run < 100000; ++run) {
        const std::string text = random.oneIn(2) ? random.denseText(40) : random.text(fields, 30);
        std::string expected = text;
        plainBlanking(expected);
        std::string removed = text;
        if (!removeExpressions(removed, plainDelimiters))
            removeExpressions(removed, richDelimiters);
        ASSERT_EQ(removed, expected) << "seed " << seed << ", run " << run << ", text " << text;
    }
}

} // namespace qncal::test
