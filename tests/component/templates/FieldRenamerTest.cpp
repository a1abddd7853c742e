#include "templates/FieldRenamer.h"

#include "support/randomSeed.h"
#include "utilities/replaceText.h"

#include <gtest/gtest.h>

#include <random>

namespace qncal::test {

namespace {

const std::vector<FieldRenaming> lines{
    {{"<<"}, {"«"}},         {{">>"}, {"»"}},  {{"«(ab"}, {"«(cabc"}}, {{"abc"}, {"Abcd"}},    {{"«abcd»"}, {"«b»"}},
    {{"\\'abb\\'bb"}, {""}}, {{"d«"}, {"<<"}}, {{"cab"}, {">>abc"}},   {{"«bcabc»"}, {"abc"}}, {{"«b»"}, {"«B»"}},
};

std::string randomText(std::mt19937& random)
{
    static const std::vector<std::string> pieces{"<", "<<", ">>", "«", "»",     "a",     "b",
                                                 "C", "d",  "ab", "(", "\\'ab", "\\'bb", "Abc"};
    std::string text;
    for (auto count = std::uniform_int_distribution<int>(0, 12)(random); count > 0; --count)
        text += pieces[std::uniform_int_distribution<std::size_t>(0, pieces.size() - 1)(random)];
    return text;
}

} // namespace

TEST(FieldRenamerTest, GivesWhatOneLineAfterTheOtherGives)
{
    const unsigned seed = randomSeed();
    std::mt19937 random(seed);
    const FieldRenamer renamer(lines);
    for (int run = 0; run < 20000; ++run) {
        const std::string text = randomText(random);
        std::string expected = text;
        for (const FieldRenaming& line : lines)
            replaceNoCase(expected, line.oldText.view(), line.newText.view());
        std::string renamed = text;
        renamer.apply(renamed);
        ASSERT_EQ(renamed, expected) << "seed " << seed << ", run " << run << ", text " << text;
    }
}

} // namespace qncal::test
