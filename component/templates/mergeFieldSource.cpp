#include "templates/mergeFieldSource.h"

#include "templates/mergeFieldCodes.h"
#include "utilities/replaceText.h"
#include "utilities/text.h"

#include <algorithm>
#include <span>

namespace qncal {

namespace {

constexpr MergeFieldSource sources[] = {
    {mergeCategory::contactInfo, MergeRecord::contact, &MergeItemIDs::contact, "ContactID"},
    {mergeCategory::contactNotes, MergeRecord::contactNotes, &MergeItemIDs::contact, "ContactNum"},
    {mergeCategory::companyInfo, MergeRecord::company, &MergeItemIDs::company, "CompanyID"},
    // No such column: the notes of a company are never found, and its notes field stays blank. Meant.
    {mergeCategory::companyNotes, MergeRecord::companyNotes, &MergeItemIDs::company, "ComapnyNum"},
    {mergeCategory::clientInfo, MergeRecord::mainBusiness, &MergeItemIDs::company, "CompanyID"},
    // Nor has software this column: its fields stay blank as well.
    {mergeCategory::softwareInfo, MergeRecord::software, &MergeItemIDs::company, "CompanyID"},
    {mergeCategory::firmInfo, MergeRecord::firm, &MergeItemIDs::firm, "CompanyID"},
    {mergeCategory::appointInfo, MergeRecord::appointment, &MergeItemIDs::appointment, "AppointmentID"},
    {mergeCategory::taskInfo, MergeRecord::task, &MergeItemIDs::task, "TaskID"},
    {mergeCategory::docketInfo, MergeRecord::timeEntry, &MergeItemIDs::docket, "DocketID"},
};

constexpr std::string_view contactProvinces[] = {
    "AbbreviatedProvince",       "BusinessAbbreviatedProvince", "HomeAbbreviatedProvince",
    "SpouseAbbreviatedProvince", "AltAbbreviatedProvince",
};
constexpr std::string_view companyProvinces[] = {"AbbreviatedProvince", "AltAbbreviatedProvince"};

} // namespace

const MergeFieldSource* findMergeFieldSource(std::string_view category)
{
    const auto* source = std::ranges::find(sources, category, &MergeFieldSource::category);
    return source == std::end(sources) ? nullptr : source;
}

bool becomesProvinceColumn(std::string& field, MergeRecord record)
{
    std::span<const std::string_view> provinces;
    if (record == MergeRecord::contact)
        provinces = contactProvinces;
    else if (record == MergeRecord::company)
        provinces = companyProvinces;
    if (std::ranges::none_of(provinces, [&](std::string_view province) { return equalsNoCase(province, field); }))
        return false;
    return replaceNoCase(field, "Abbreviated", "");
}

} // namespace qncal
