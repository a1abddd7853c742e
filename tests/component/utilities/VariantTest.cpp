#include "utilities/Variant.h"

#include "support/rowName.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace qncal {
namespace {

template <class Body>
std::int32_t errorOf(Body body)
{
    try {
        body();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

struct IntegerRow {
    const char* name;
    Variant value;
    std::int32_t expected;
};

class VariantIntegerTest : public testing::TestWithParam<IntegerRow> {};

TEST_P(VariantIntegerTest, Converts) { EXPECT_EQ(GetParam().value.toInteger(), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Values, VariantIntegerTest,
                         testing::Values(IntegerRow{"Number", 42, 42}, IntegerRow{"HalfToEvenDown", 0.5, 0},
                                         IntegerRow{"HalfToEvenUp", 1.5, 2}, IntegerRow{"HalfToEvenDownAgain", 2.5, 2},
                                         IntegerRow{"NegativeHalf", -0.5, 0}, IntegerRow{"NegativeHalfUp", -1.5, -2},
                                         IntegerRow{"AboveHalf", 2.51, 3}, IntegerRow{"True", true, -1},
                                         IntegerRow{"False", false, 0}, IntegerRow{"Text", "17", 17},
                                         IntegerRow{"TextWithBlanks", " 17 ", 17}, IntegerRow{"FractionText", "2.5", 2},
                                         IntegerRow{"Date", Date::of(2026, 3, 31), 46112},
                                         IntegerRow{"Largest", 2147483647.4, 2147483647},
                                         IntegerRow{"Smallest", -2147483648.0, -2147483647 - 1}),
                         test::rowName);

TEST(VariantTest, IntegerOutOfRangeIsAnOverflow)
{
    for (const double number : {2147483647.5, -2147483649.0, 1e300, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(errorOf([&] { Variant(number).toInteger(); }), errorNumber::overflow) << number;
}

TEST(VariantTest, NullConvertsToNothing)
{
    const Variant null;
    EXPECT_TRUE(null.isNull());
    EXPECT_FALSE(null.isNumeric());
    EXPECT_EQ(errorOf([&] { null.toInteger(); }), errorNumber::invalidUseOfNull);
    EXPECT_EQ(errorOf([&] { null.toReal(); }), errorNumber::invalidUseOfNull);
    EXPECT_EQ(errorOf([&] { null.toBoolean(); }), errorNumber::invalidUseOfNull);
    EXPECT_EQ(errorOf([&] { null.toDate(); }), errorNumber::invalidUseOfNull);
    EXPECT_EQ(errorOf([&] { null.toText(); }), errorNumber::invalidUseOfNull);
}

TEST(VariantTest, OtherTextIsAMismatch)
{
    for (const char* text : {"", "soon", "12x"}) {
        const Variant value(text);
        EXPECT_EQ(errorOf([&] { value.toInteger(); }), errorNumber::typeMismatch) << text;
        EXPECT_EQ(errorOf([&] { value.toReal(); }), errorNumber::typeMismatch) << text;
        EXPECT_EQ(errorOf([&] { value.toBoolean(); }), errorNumber::typeMismatch) << text;
        EXPECT_EQ(errorOf([&] { value.toDate(); }), errorNumber::typeMismatch) << text;
        EXPECT_FALSE(value.isNumeric()) << text;
    }
}

TEST(VariantTest, ReadsBooleans)
{
    for (const Variant& value :
         {Variant(true), Variant("TRUE"), Variant("true"), Variant("-1"), Variant(1), Variant(0.5)})
        EXPECT_TRUE(value.toBoolean()) << value.toText();
    for (const Variant& value : {Variant(false), Variant("False"), Variant("0"), Variant(0)})
        EXPECT_FALSE(value.toBoolean()) << value.toText();
}

TEST(VariantTest, ReadsDates)
{
    EXPECT_EQ(Variant("Mar 31, 2026").toDate(), Date::of(2026, 3, 31));
    EXPECT_EQ(Variant("9:30 pm").toDate(), Date::timeOf(21, 30));
    EXPECT_EQ(Variant(46112.5).toDate(), Date::of(2026, 3, 31, 12));
    EXPECT_EQ(Variant(noDate).toDate(), noDate);
    EXPECT_EQ(errorOf([] { Variant(1e9).toDate(); }), errorNumber::overflow);
    EXPECT_EQ(errorOf([] { Variant(std::numeric_limits<double>::quiet_NaN()).toDate(); }), errorNumber::overflow);
}

TEST(VariantTest, WritesText)
{
    EXPECT_EQ(Variant(true).toText(), "True");
    EXPECT_EQ(Variant(false).toText(), "False");
    EXPECT_EQ(Variant(12).toText(), "12");
    EXPECT_EQ(Variant(0.25).toText(), "0.25");
    EXPECT_EQ(Variant(Date::of(2026, 3, 31, 9, 30)).toText(), "2026-03-31 09:30:00");
    EXPECT_EQ(Variant("as it is ").toText(), "as it is ");
}

TEST(VariantTest, GivesItsTextAway)
{
    Variant value(std::string(100, 'x'));
    const char* const data = value.text().data();
    const std::string taken = std::move(value).toText();
    EXPECT_EQ(taken.data(), data);
}

TEST(VariantTest, KnowsItsKind)
{
    EXPECT_TRUE(Variant(1).isNumber());
    EXPECT_TRUE(Variant(1.5).isNumber());
    EXPECT_TRUE(Variant(true).isBoolean());
    EXPECT_FALSE(Variant(true).isNumber());
    EXPECT_TRUE(Variant(Date(1)).isDate());
    EXPECT_TRUE(Variant("").isText());
    EXPECT_FALSE(Variant("").isNull());
}

TEST(VariantTest, NumericIsWhatReadsAsANumber)
{
    EXPECT_TRUE(Variant(1).isNumeric());
    EXPECT_TRUE(Variant(true).isNumeric());
    EXPECT_TRUE(Variant(" 1,250.5 ").isNumeric());
    EXPECT_FALSE(Variant(Date(1)).isNumeric());
    EXPECT_FALSE(Variant("2026-03-31").isNumeric());
}

TEST(VariantTest, EqualByKindAndValue)
{
    EXPECT_EQ(Variant(1), Variant(1.0));
    EXPECT_EQ(Variant(), Variant());
    EXPECT_NE(Variant(1), Variant("1"));
    EXPECT_NE(Variant(true), Variant(-1));
    EXPECT_NE(Variant(), Variant(""));
}

} // namespace
} // namespace qncal
