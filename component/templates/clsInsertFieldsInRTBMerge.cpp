// clsInsertFieldsInRTB: the merge of a template.

#include "templates/clsInsertFieldsInRTB.h"

#include "core/routineScope.h"
#include "templates/dateFormatKeywords.h"
#include "templates/delimiters.h"
#include "templates/fieldSubstitution.h"
#include "templates/mergeFieldCodes.h"
#include "templates/richTextReplacement.h"
#include "templates/unfoundFields.h"
#include "utilities/replaceText.h"

namespace qncal {

namespace {

constexpr std::string_view beginningOfTodaysDate = "(Todays Date, ";

bool containsNoCase(std::string_view text, std::string_view wanted)
{
    return findNoCase(text, wanted) != std::string_view::npos;
}

/// For an item without a company: its contact's name where the template asks for the company's.
void askForContactName(std::string& text)
{
    for (const DelimiterPair& pair : {plainDelimiters, richDelimiters}) {
        const std::string company = inDelimiters("Company Name", pair);
        const std::string contact = inDelimiters("Contact Display Name", pair);
        if (containsNoCase(text, company) && !containsNoCase(text, contact)) {
            replaceNoCase(text, company, contact);
            return;
        }
    }
}

} // namespace

std::string clsInsertFieldsInRTB::parseRTBComment()
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-parseRTBComment", std::string(), [this] {
        std::string text = convertProvinceFields(templateText_);
        if (showsContactForCompany())
            askForContactName(text);
        if (!verifyFieldListIsPopulated())
            return text;
        const auto valueOf = [this](std::int32_t position, const std::string& format) {
            return std::optional(getDataFieldInfo(fieldList().rows()[static_cast<std::size_t>(position)].key, format));
        };
        const bool plainOnesMerged = mergeFields(text, valueOf);
        removeUnfoundFields(text, plainOnesMerged);
        return text;
    });
}

bool clsInsertFieldsInRTB::mergeFields(std::string& text, const FieldValueSource& valueOf)
{
    FieldListCollection& list = fieldList();
    // Values let other events run, and one of those may end this engine.
    const auto keepsTheList = fieldList_;
    for (const DelimiterPair& pair : {plainDelimiters, richDelimiters}) {
        text = parseTodaysDateInRTBComment(std::move(text), pair.open, pair.close);
        // Expressions between « and » keep those of rich text from being merged; today's date does not.
        if (substituteFields(text, pair, list, convertStrToRTF_, valueOf))
            return pair.open == plainDelimiters.open;
    }
    return false;
}

std::string clsInsertFieldsInRTB::parseTodaysDateInRTBComment(std::string text, std::string_view openDelimiter,
                                                              std::string_view closeDelimiter)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-parseTodaysDateInRTBComment", std::string(), [&] {
        // Looked for without its delimiter, which many fields begin with.
        if (!containsNoCase(text, beginningOfTodaysDate))
            return std::move(text);
        const std::string beginning = std::string(openDelimiter).append(beginningOfTodaysDate);
        for (const DateFormatKeyword& format : dateFormatKeywords) {
            const std::string expression = (beginning + std::string(format.keyword) + ")").append(closeDelimiter);
            if (containsNoCase(text, expression))
                replaceText(text, expression, getTodaysDate(std::string(format.todayFormat)));
        }
        return std::move(text);
    });
}

bool clsInsertFieldsInRTB::replaceText(std::string& text, std::string_view findText, std::string_view replacementText)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-replaceText", false, [&] {
        if (!convertStrToRTF_) {
            replaceNoCase(text, findText, replacementText);
        } else if (!replaceInRichText(text, findText, replacementText)) {
            // The rich form is looked for as well and, when it is there, left as it is: meant.
            static_cast<void>(containsNoCase(text, convertFieldName(std::string(findText))));
        }
        return false;
    });
}

std::string clsInsertFieldsInRTB::removeBlankLinesFromRTFText(const std::string& text)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-removeBlankLinesFromRTFText", std::string(), [&] { return text; });
}

bool clsInsertFieldsInRTB::replaceUnfoundMergeFieldsWithBlanks(std::string& text)
{
    removeUnfoundFields(text, false);
    return false;
}

void clsInsertFieldsInRTB::removeUnfoundFields(std::string& text, bool plainOnesMerged)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-replaceUnfoundMergeFieldsWithBlanks", [&] {
        if (fieldList().getCount() == 0)
            return;
        // Beside expressions between « and », merged or removed, those of rich text stay: meant.
        if (!removeExpressions(text, plainDelimiters) && !plainOnesMerged)
            removeExpressions(text, richDelimiters);
    });
}

std::string clsInsertFieldsInRTB::convertFieldName(std::string fieldExpression)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-convertFieldName", std::string(), [&] {
        replaceNoCase(fieldExpression, plainDelimiters.open, richDelimiters.open);
        replaceNoCase(fieldExpression, plainDelimiters.close, richDelimiters.close);
        return std::move(fieldExpression);
    });
}

bool clsInsertFieldsInRTB::verifyFieldListIsPopulated()
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-verifyFieldListIsPopulated", false, [this] {
        // The call that builds the list still answers False, and the merge that asked leaves its fields: meant.
        const bool wasPopulated = fieldList().getCount() > 0;
        if (!wasPopulated)
            buildListForIDs();
        return wasPopulated;
    });
}

void clsInsertFieldsInRTB::buildListForIDs()
{
    if (appointmentID_ >= 0)
        listType_ = mergeListType::appointment;
    else if (taskID_ >= 0)
        listType_ = mergeListType::task;
    else if (docketId_ >= 0)
        listType_ = mergeListType::timeEntry;
    else if (companyID_ >= 0 || contactID_ >= 0)
        listType_ = mergeListType::contact;
    else
        return;
    bool noListBox = true;
    createDefaultFieldListStructure(noListBox, false);
}

} // namespace qncal
