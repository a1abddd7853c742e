// clsInsertFieldsInRTB: the building of its catalogue.

#include "templates/clsInsertFieldsInRTB.h"

#include "controls/otherEvents.h"
#include "core/routineScope.h"
#include "templates/MergeFieldListBuilder.h"
#include "templates/mergeFieldCodes.h"
#include "templates/mergeFieldListPlan.h"

namespace qncal {

namespace {

/// The key of a line that stands for no field.
constexpr std::int32_t headerKey = -1;
constexpr std::size_t usualRowCount = 256;
/// How often other events may run before the firm's own block.
constexpr int turnsForOtherEvents = 2;

void addHeaderLine(ListTarget& listBox, std::string_view text)
{
    statement([&] { listBox.addLine(text, headerKey); });
}

} // namespace

void clsInsertFieldsInRTB::createDefaultFieldListStructure(bool& noListBox, bool clearListBox)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-createDefaultFieldListStructure", [&] {
        noListBox = !listBox_;
        FieldListCollection& list = fieldList();
        // One of the events that run meanwhile may end this engine.
        const auto keepsTheList = fieldList_;
        list.clearRows();
        list.reserve(usualRowCount);
        lastRowKey_ = 0;
        // A True is -1 as a number, never above 0, so that the list box keeps its lines: meant.
        if (listBox_ && Variant(clearListBox).toInteger() > 0)
            statement([&] { listBox_->clear(); });
        if (listBox_ && mergeFieldListUse_ == mergeListUse::singleField)
            addHeaderLine(*listBox_, "Not Assigned");
        addBlocksOfListType(list, noListBox);
        if (listBox_) {
            statement([&] { listBox_->refresh(); });
            for (int turn = 0; turn < turnsForOtherEvents; ++turn)
                statement([] { letOtherEventsRun(); });
        }
        createAccountantFieldListStructure(list, noListBox);
    });
}

void clsInsertFieldsInRTB::createCompanyInfoFieldListStructure(FieldListCollection& list, bool noListBox)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-createCompanyInfoFieldListStructure",
            [&] { addBlock(list, MergeFieldBlock::company, noListBox); });
}

void clsInsertFieldsInRTB::createAppointmentInfoFieldListStructure(FieldListCollection& list, bool noListBox)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-createAppointmentInfoFieldListStructure",
            [&] { addBlock(list, MergeFieldBlock::appointment, noListBox); });
}

void clsInsertFieldsInRTB::createTaskInfoFieldListStructure(FieldListCollection& list, bool noListBox)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-createTaskInfoFieldListStructure",
            [&] { addBlock(list, MergeFieldBlock::task, noListBox); });
}

void clsInsertFieldsInRTB::createDocketInfoFieldListStructure(FieldListCollection& list, bool noListBox)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-createDocketInfoFieldListStructure",
            [&] { addBlock(list, MergeFieldBlock::timeEntry, noListBox); });
}

void clsInsertFieldsInRTB::createAccountantFieldListStructure(FieldListCollection& list, bool noListBox)
{
    routine("Vestrel.exe-clsInsertFieldsInRTB-createAccountantFieldListStructure", [&] {
        ListTarget* listBox = noListBox ? nullptr : listBox2_.get();
        if (listBox && showListCategoryHeaders_)
            addHeaderLine(*listBox, "Insert your Letterhead");
        MergeFieldListBuilder(list, lastRowKey_, listBox, mergeFieldListUse_).addBlock(MergeFieldBlock::firm);
    });
}

void clsInsertFieldsInRTB::addBlocksOfListType(FieldListCollection& list, bool noListBox)
{
    for (const MergeFieldListStep& step : mergeFieldListPlan(listType_)) {
        if (step.needsCompany && companyID_ < 0)
            continue;
        if (listBox_ && showListCategoryHeaders_) {
            if (step.blankLineBefore)
                addHeaderLine(*listBox_, "");
            addHeaderLine(*listBox_, step.header);
        }
        switch (step.block) {
        case MergeFieldBlock::appointment:
            createAppointmentInfoFieldListStructure(list, noListBox);
            break;
        case MergeFieldBlock::task:
            createTaskInfoFieldListStructure(list, noListBox);
            break;
        case MergeFieldBlock::timeEntry:
            createDocketInfoFieldListStructure(list, noListBox);
            break;
        case MergeFieldBlock::company:
            createCompanyInfoFieldListStructure(list, noListBox);
            break;
        default:
            addBlock(list, step.block, noListBox);
        }
    }
}

void clsInsertFieldsInRTB::addBlock(FieldListCollection& list, MergeFieldBlock block, bool noListBox)
{
    MergeFieldListBuilder(list, lastRowKey_, noListBox ? nullptr : listBox_.get(), mergeFieldListUse_).addBlock(block);
}

} // namespace qncal
