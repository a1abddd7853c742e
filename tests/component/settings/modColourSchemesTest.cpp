#include "settings/modColourSchemes.h"

#include "core/ServiceRegistry.h"
#include "items/modDatabaseFunctions.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

class ColourSchemesTest : public test::ComponentTest {
protected:
    ColourSchemesTest() { serviceRegistry().database = recording; }
    std::int32_t add(const test::TestWorld::Values& values) { return addRow("ColourSchemes", values); }
    /// "name=number" of each line.
    std::vector<std::string> lines() const
    {
        std::vector<std::string> texts;
        for (const ListRow& row : combo.rows())
            texts.push_back(row.text + "=" + std::to_string(row.itemData));
        return texts;
    }
    using Lines = std::vector<std::string>;

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
    Form form{"frmAppt"};
    ComboBox combo{form, "cboScheme"};
};

TEST_F(ColourSchemesTest, TheListOfAKindStartsWithNoSchemeAndGoesByName)
{
    const auto of = [](std::int32_t id) { return "=" + std::to_string(id); };
    const auto blue = add({{"SchemeName", "Blue"}, {"SchemeType", "1"}});
    const auto amber = add({{"SchemeName", "amber"}, {"SchemeType", "1"}});
    const auto nameless = add({{"SchemeName", ""}, {"SchemeType", "1"}});
    add({{"SchemeType", "1"}});
    add({{"SchemeName", "Of appointments"}, {"SchemeType", "0"}});
    combo.addItem("left over");
    modColourSchemes::populateColourSchemes(combo, 1);
    EXPECT_EQ(lines(), (Lines{"<No Scheme Selected>=-1", of(nameless), "amber" + of(amber), "Blue" + of(blue)}))
        << "an empty name is a name; only a null is none";
    EXPECT_EQ(recording->opened,
              (decltype(recording->opened){
                  {"SELECT ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName, ColourSchemes.SchemeType "
                   "FROM ColourSchemes WHERE ColourSchemes.SchemeType = 1 ORDER BY ColourSchemes.SchemeName;",
                   DatabaseService::readOnly}}));
    EXPECT_TRUE(recording->open.empty());
    EXPECT_EQ(errors->labels(), Lines{"Vestrel.exe-modDatabaseFunctions-populateColourSchemes"});
}

TEST_F(ColourSchemesTest, WithoutAConnectionOnlyNoSchemeIsListed)
{
    add({{"SchemeName", "Blue"}, {"SchemeType", "0"}});
    recording->connected = false;
    modColourSchemes::populateColourSchemes(combo, 0);
    EXPECT_EQ(lines(), Lines{"<No Scheme Selected>=-1"});
    EXPECT_EQ(modDatabaseFunctions::getColourSchemeNameFromColourSchemeID(1), "");
    EXPECT_TRUE(recording->opened.empty());
}

TEST_F(ColourSchemesTest, ANameIsReadByItsNumber)
{
    const auto blue = add({{"SchemeName", "Blue"}, {"SchemeType", "0"}});
    EXPECT_EQ(modDatabaseFunctions::getColourSchemeNameFromColourSchemeID(blue), "Blue");
    EXPECT_EQ(recording->opened,
              (decltype(recording->opened){{"SELECT ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName "
                                            "FROM ColourSchemes WHERE ColourSchemes.ColourSchemeID = "
                                                + std::to_string(blue) + ";",
                                            DatabaseService::readOnly}}));
    EXPECT_EQ(errors->labels(), Lines{"Vestrel.exe-modDatabaseFunctions-getColourSchemeNameFromColourSchemeID"});
}

} // namespace
} // namespace qncal
