#include "templates/MergeFieldListBuilder.h"

#include "core/LocaleService.h"
#include "core/RecordSet.h"
#include "core/routineScope.h"
#include "templates/mergeFieldCodes.h"
#include "templates/regionWords.h"
#include "utilities/Clock.h"

#include <string>
#include <utility>

namespace qncal {

namespace {

/// The text with a word in place of its placeholder, which it holds.
std::string withWord(std::string_view text, std::string_view placeholder, std::string_view word)
{
    return std::string(text).replace(text.find(placeholder), placeholder.size(), word);
}

FieldText sampleText(const MergeFieldEntry& entry)
{
    if (!entry.sampleHoldsWord)
        return FieldText::fixed(entry.sample);
    return FieldText::owned(withWord(entry.sample, "{year}", std::to_string(today().civilDate().year)));
}

std::string provinceName(std::string_view name, const RegionWords& words)
{
    const std::pair<std::string_view, std::string_view> placeholders[] = {
        {"{salesTax}", salesTaxWord(words)},
        {"{secondSalesTax}", words.secondSalesTax},
        {"{corpTax}", words.corpTax},
        {"{workersBoard}", words.workersBoard},
    };
    for (const auto& [placeholder, word] : placeholders) {
        if (name.find(placeholder) != std::string_view::npos)
            return withWord(name, placeholder, word);
    }
    return std::string(name);
}

bool dependsOnProvince(const MergeFieldEntry& entry)
{
    return entry.province != ProvinceCondition::any || entry.nameHoldsWord;
}

bool isForProvince(ProvinceCondition condition, std::int32_t province)
{
    switch (condition) {
    case ProvinceCondition::any:
        return true;
    case ProvinceCondition::ontario:
        return province == provinceCode::ontario;
    case ProvinceCondition::quebec:
        return province == provinceCode::quebec;
    case ProvinceCondition::outsideQuebec:
        return province != provinceCode::quebec;
    }
    return false;
}

RegionCondition currentRegion()
{
    return currentCountry() == LocaleService::canada ? RegionCondition::canada : RegionCondition::unitedStates;
}

FieldListRow rowOf(const MergeFieldEntry& entry)
{
    FieldListRow row;
    row.databaseField = FieldText::fixed(entry.databaseField);
    row.displayName = FieldText::fixed(entry.displayName);
    row.category = FieldText::fixed(entry.category);
    row.dataType = entry.type;
    row.sampleText = sampleText(entry);
    row.maximumLength = entry.maximumLength;
    return row;
}

/// The number in a label that the host left as it made it, "Custom 1" to "Custom 5", or 0.
int numberOfUntouchedLabel(std::string_view label)
{
    constexpr std::string_view untouched = "Custom ";
    if (label.size() != untouched.size() + 1 || !label.starts_with(untouched))
        return 0;
    const int number = label.back() - '0';
    return number >= 1 && number <= customFieldCount ? number : 0;
}

std::string_view withoutColonAtTheEnd(std::string_view label)
{
    return label.ends_with(':') ? label.substr(0, label.size() - 1) : label;
}

FieldText customName(std::string_view label, const CustomFieldTexts& texts)
{
    if (const int number = numberOfUntouchedLabel(label); number > 0)
        return FieldText::fixed(texts.fallbackNames[static_cast<std::size_t>(number - 1)].view());
    return FieldText::owned(std::string(texts.labelPrefix).append(label));
}

} // namespace

void MergeFieldListBuilder::addBlock(MergeFieldBlock block)
{
    RegionCondition region = RegionCondition::any;
    for (const MergeFieldEntry& entry : mergeFieldEntries(block)) {
        if (entry.region == RegionCondition::any)
            region = RegionCondition::any;
        else if (region == RegionCondition::any)
            region = currentRegion();
        if (entry.region != region || !isForThisUse(entry.use))
            continue;
        if (entry.customGroup != CustomFieldGroup::none)
            addCustomRows(entry);
        else if (dependsOnProvince(entry))
            addProvinceRow(entry);
        else
            addRow(rowOf(entry), entry.listText);
    }
}

void MergeFieldListBuilder::addProvinceRow(const MergeFieldEntry& entry)
{
    const std::int32_t province = currentProvince();
    if (!isForProvince(entry.province, province))
        return;
    FieldListRow row = rowOf(entry);
    row.displayName = FieldText::owned(provinceName(entry.displayName, regionWords(province)));
    addRow(std::move(row));
}

void MergeFieldListBuilder::addCustomRows(const MergeFieldEntry& entry)
{
    const CustomFieldTexts& texts = customFieldTexts(entry.customGroup);
    CustomNames names = customNames(texts);
    for (std::size_t i = 0; i < names.size(); ++i) {
        FieldListRow row = rowOf(entry);
        row.databaseField = FieldText::fixed(texts.databaseFields[i].view());
        row.displayName = std::move(names[i]);
        row.sampleText = FieldText::fixed(texts.samples[i].view());
        addRow(std::move(row));
    }
}

MergeFieldListBuilder::CustomNames MergeFieldListBuilder::customNames(const CustomFieldTexts& texts)
{
    CustomNames names;
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = FieldText::fixed(texts.fallbackNames[i].view());
    if (!isDatabaseConnected())
        return names;

    RecordSet labels = RecordSet::openReadOnly(texts.labelQuery);
    if (labels.hasRecords()) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            std::string text;
            labels.read(texts.labelColumns[i].view(), text);
            if (const std::string_view label = withoutColonAtTheEnd(text); !label.empty())
                names[i] = customName(label, texts);
        }
    }
    labels.close();
    return names;
}

bool MergeFieldListBuilder::isForThisUse(UseCondition use) const
{
    return use == UseCondition::any || (use == UseCondition::singleField) == (use_ == mergeListUse::singleField);
}

void MergeFieldListBuilder::addRow(FieldListRow row, std::string_view listText)
{
    row.key = ++lastKey_;
    list_.addRow(std::move(row));
    if (!listBox_)
        return;
    const std::string_view line = listText.empty() ? list_.current().displayName.view() : listText;
    statement([&] { listBox_->addLine(line, lastKey_); });
}

} // namespace qncal
