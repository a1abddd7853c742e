#pragma once

#include "component/templates/MergeEngineTest.h"

namespace qncal::test {

/// An engine that merges sample values, with a list of the test's own fields.
class SampleMergeTest : public MergeEngineTest {
protected:
    SampleMergeTest() { engine.TestComment(true); }

    void addField(std::string name, std::string sample, MergeDataType type = MergeDataType::text)
    {
        FieldListRow row;
        row.key = engine.FieldList()->getCount() + 1;
        row.displayName = FieldText::owned(std::move(name));
        row.category = FieldText::fixed("CompanyInfo");
        row.sampleText = FieldText::owned(std::move(sample));
        row.dataType = type;
        engine.FieldList()->addRow(std::move(row));
    }
    std::string merged(std::string text)
    {
        engine.TemplateText(std::move(text));
        return engine.parseRTBComment();
    }
    std::string mergedPlain(std::string text)
    {
        engine.ConvertStrToRTF(false);
        return merged(std::move(text));
    }
};

template <class Parameter>
class SampleMergeTestWith : public SampleMergeTest, public testing::WithParamInterface<Parameter> {
};

} // namespace qncal::test
