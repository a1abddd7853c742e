#include "firmcal/Table.h"

#include <gtest/gtest.h>

#include <sstream>

namespace qncal::firmcal {
namespace {

std::string printed(const Table& table)
{
    std::ostringstream out;
    table.print(out);
    return out.str();
}

TEST(Table, AlignsByCodePointsAndLeavesNoBlanksAtLineEnds)
{
    Table table({{"Name"}, {"Count", Table::Align::right}, {"Note"}});
    table.add({"Étienne Wójcik", "7", ""});
    table.add({"Ann", "12345", "x"});
    EXPECT_EQ(printed(table), "Name            Count  Note\n"
                              "--------------  -----  ----\n"
                              "Étienne Wójcik      7\n"
                              "Ann             12345  x\n");
}

TEST(Table, MissingCellsAreEmpty)
{
    Table table({{"A"}, {"B"}});
    table.add({"1"});
    EXPECT_EQ(printed(table), "A  B\n-  -\n1\n");
}

TEST(Table, LineBreaksInACellPrintAsABlank)
{
    Table table({{"A"}});
    table.add({"one\r\ntwo\nthree\tfour"});
    EXPECT_EQ(printed(table), "A\n------------------\none two three four\n");
}

TEST(Table, CutsLongCells)
{
    Table table({{"A"}});
    table.limitCells(4);
    table.add({"éééé"});
    table.add({"ééééé"});
    EXPECT_EQ(printed(table), "A\n----\néééé\nééé…\n");
}

TEST(Table, RowsAloneHaveNoHeaderAndNoEmptyColumns)
{
    Table table({{"Long header"}, {"Empty"}, {"C"}});
    table.add({"a", "", "c"});
    table.add({"bb", "", "d"});
    std::ostringstream out;
    table.printRows(out, "> ");
    EXPECT_EQ(out.str(), "> a   c\n> bb  d\n");
}

TEST(CodePoints, AreCountedAndCut)
{
    EXPECT_EQ(codePointCount(""), 0u);
    EXPECT_EQ(codePointCount("«é»😀"), 4u);
    EXPECT_EQ(firstCodePoints("«é»😀", 2), "«é");
    EXPECT_EQ(firstCodePoints("«é»😀", 9), "«é»😀");
    EXPECT_EQ(firstCodePoints("abc", 0), "");
}

} // namespace
} // namespace qncal::firmcal
