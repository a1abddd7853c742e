#include "firmcal/mergeFieldDocument.h"

#include "firmcal/mergeFields.h"
#include "services/HostEnvironment.h"
#include "store/SqliteDatabase.h"
#include "utilities/replaceText.h"
#include "utilities/text.h"

#include <algorithm>
#include <array>

namespace qncal::firmcal {

namespace {

/// A region whose catalogue is looked at; the provinces by their letters, the United States by none.
using Region = std::string_view;
constexpr std::array<Region, 11> regions{"ON", "AB", "BC", "MB", "NB", "NL", "NS", "PE", "QC", "SK", ""};

struct DocumentedField {
    MergeField field;
    std::vector<Region> regions;
};

/// A section of the document: the fields under one heading of the pick lists, in all regions.
struct Section {
    std::string heading;
    std::vector<DocumentedField> fields;
};

/// What one list consists of.
struct ListContents {
    std::string_view name;
    std::vector<std::string> headings;
};

void apply(Region region, host::Locale::Values& values)
{
    values.country = region.empty() ? LocaleService::unitedStates : LocaleService::canada;
    if (const auto province = host::provinceFromText(region))
        values.province = province->code;
}

/// The contact's name has a heading of its own where it is the default contact of a company.
std::string sectionHeading(const std::string& heading)
{
    constexpr std::string_view prefix = "Default ";
    return heading.starts_with(prefix) ? heading.substr(prefix.size()) : heading;
}

/// Puts a region's fields among those of other regions: a new one goes before the one that follows it in its own list.
void mergeInto(std::vector<DocumentedField>& documented, const std::vector<MergeField>& fields, Region region)
{
    auto place = documented.end();
    for (auto field = fields.rbegin(); field != fields.rend(); ++field) {
        const auto found = std::ranges::find_if(documented, [&](const DocumentedField& known) {
            return known.field.name == field->name && known.field.databaseField == field->databaseField;
        });
        place = found != documented.end() ? found : documented.insert(place, {*field, {}});
        if (place->regions.empty() || place->regions.back() != region)
            place->regions.push_back(region);
    }
}

class Documentation {
public:
    void add(const MergeFieldList& list, Region region)
    {
        ListContents contents{list.name, {}};
        for (const MergeFieldGroup& group : mergeFieldGroups(list)) {
            const std::string heading = sectionHeading(group.heading);
            contents.headings.push_back(heading);
            mergeInto(section(heading).fields, group.fields, region);
        }
        if (std::ranges::find(lists_, list.name, &ListContents::name) == lists_.end())
            lists_.push_back(std::move(contents));
    }

    std::span<const ListContents> lists() const { return lists_; }
    std::span<const Section> sections() const { return sections_; }

private:
    Section& section(const std::string& heading)
    {
        const auto found = std::ranges::find(sections_, heading, &Section::heading);
        return found != sections_.end() ? *found : sections_.emplace_back(Section{heading, {}});
    }

    std::vector<ListContents> lists_;
    std::vector<Section> sections_;
};

std::string joined(const std::vector<Region>& words)
{
    std::string text;
    for (const Region word : words)
        text.append(text.empty() ? "" : ", ").append(word);
    return text;
}

/// Where a field is listed; nothing for everywhere.
std::string whereText(std::vector<Region> listedIn)
{
    if (listedIn.size() == regions.size())
        return {};
    const bool inUnitedStates = std::erase(listedIn, Region()) > 0;
    std::vector<Region> missing;
    for (const Region region : regions) {
        if (!region.empty() && std::ranges::find(listedIn, region) == listedIn.end())
            missing.push_back(region);
    }
    std::string text;
    if (missing.empty())
        text = "Canada";
    else if (missing.size() < listedIn.size())
        text = "Canada but " + joined(missing);
    else
        text = joined(listedIn);
    if (inUnitedStates)
        text.append(text.empty() ? "" : ", ").append("United States");
    return text;
}

std::string cell(std::string text)
{
    replaceNoCase(text, "|", "\\|");
    return text;
}

std::string link(const std::string& heading)
{
    std::string anchor = lowerAscii(heading);
    std::ranges::replace(anchor, ' ', '-');
    return "[" + heading + "](#" + anchor + ")";
}

std::string listTable(std::span<const ListContents> lists)
{
    std::string text = "| Kind | Sections |\n|---|---|\n";
    for (const ListContents& list : lists) {
        text += "| `" + std::string(list.name) + "` | ";
        for (const std::string& heading : list.headings)
            text += (heading == list.headings.front() ? "" : ", ") + link(heading);
        text += " |\n";
    }
    return text;
}

std::string sectionText(const Section& section)
{
    std::string text = "\n## " + section.heading + "\n\n| Field | Type | Sample | Where |\n|---|---|---|---|\n";
    for (const DocumentedField& documented : section.fields)
        text += "| `" + documented.field.expression + "` | " + std::string(documented.field.type) + " | "
                + cell(documented.field.sample) + " | " + whereText(documented.regions) + " |\n";
    return text;
}

} // namespace

std::string mergeFieldDocument()
{
    const host::HostEnvironment host({.database = host::SqliteDatabase::openInMemory()});
    Documentation documentation;
    for (const Region region : regions) {
        apply(region, host.locale().values());
        for (const MergeFieldList& list : mergeFieldLists())
            documentation.add(list, region);
    }
    std::string text =
        "# Fields of templates\n\n"
        "Made from the catalogue in `component/templates/`; run `appTests` with `QNCAL_REWRITE=1` after a change "
        "there. How a template is written is told in [template-language.md](template-language.md).\n\n"
        "`firmcal template fields` lists the same fields under the firm's own names of its custom fields, and for its "
        "own region. The last column tells in which countries and provinces a field is listed; without a word there "
        "it is listed everywhere. A date is shown in the format that a field has without one of its own; the year of "
        "the samples is the current one.\n\n";
    text += listTable(documentation.lists());
    for (const Section& section : documentation.sections())
        text += sectionText(section);
    return text;
}

} // namespace qncal::firmcal
