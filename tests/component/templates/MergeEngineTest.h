#pragma once

#include "support/ComponentTest.h"
#include "support/rowName.h"
#include "templates/clsInsertFieldsInRTB.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qncal::test {

inline const Date lastMomentBeforeHarmonisation = Date::of(2010, 6, 30, 23, 59, 59);
inline const Date firstMomentOfHarmonisation = Date::of(2010, 7, 1);

/// A pick list that keeps its lines.
class RecordingList : public ListTarget {
public:
    struct Line {
        std::string text;
        std::int32_t itemData;
        friend bool operator==(const Line&, const Line&) = default;
    };
    std::vector<Line> lines;
    int clears = 0;
    int refreshes = 0;

    void addLine(std::string_view text, std::int32_t itemData) override
    {
        lines.push_back({std::string(text), itemData});
    }
    void clear() override { ++clears; }
    void refresh() override { ++refreshes; }
};

/// A merge field engine, its two pick lists and a settable region.
class MergeEngineTest : public ComponentTest {
protected:
    void region(std::int32_t country, std::int32_t province)
    {
        locale->country = country;
        locale->province = province;
    }
    void moveClockTo(Date moment)
    {
        otherClock.reset();
        otherClock.emplace(moment);
    }
    void useListBoxes()
    {
        engine.ListBox(listBox);
        engine.ListBox2(listBox2);
    }
    /// Builds the catalogue of a list type.
    void build(std::int32_t listType, std::int32_t use = 1)
    {
        engine.ListType(listType);
        engine.MergeFieldListUse(use);
        build();
    }
    /// Builds it as the engine is set.
    void build()
    {
        bool noListBox = false;
        engine.createDefaultFieldListStructure(noListBox, true);
        EXPECT_EQ(noListBox, engine.ListBox() == nullptr);
    }
    bool hasField(std::string_view displayName)
    {
        return engine.FieldList()->findInColumn(FieldListCollection::displayName, displayName) >= 0;
    }
    /// The database field of a display name; empty when the list lacks it.
    std::string fieldOf(std::string_view displayName)
    {
        return hasField(displayName) ? engine.FieldList()->current().databaseField.str() : "";
    }
    std::int32_t keyOf(std::string_view displayName)
    {
        EXPECT_TRUE(hasField(displayName)) << displayName;
        return engine.FieldList()->getCurrentKey();
    }

    std::shared_ptr<RecordingList> listBox = std::make_shared<RecordingList>();
    std::shared_ptr<RecordingList> listBox2 = std::make_shared<RecordingList>();
    std::optional<ClockOverride> otherClock;
    clsInsertFieldsInRTB engine;
};

template <class Parameter>
class MergeEngineTestWith : public MergeEngineTest, public testing::WithParamInterface<Parameter> {
};

} // namespace qncal::test
