#include "icalendar/CalendarImport.h"

#include "icalendar/ItemWriter.h"
#include "icalendar/KnownItems.h"
#include "icalendar/People.h"
#include "icalendar/importPlan.h"
#include "icalendar/itemFields.h"
#include "icalendar/keptLines.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"
#include "utilities/text.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace qncal::host::icalendar {

namespace {

std::string subjectOf(const CalendarComponent& component)
{
    const std::string summary = component.textOf("SUMMARY");
    return summary.empty() ? component.name : summary;
}

std::string shortened(std::string_view text)
{
    constexpr std::size_t longest = 100;
    std::string line(text.substr(0, longest));
    std::ranges::replace(line, '\n', ' ');
    return text.size() > longest ? line + "..." : line;
}

/// The number that an export gave a series or group; 0 for others.
std::int32_t fileNumber(const std::string& text)
{
    std::int32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// Who takes part, with the number that the file has for his or her series.
struct Participant {
    std::int32_t userID = -1;
    std::int32_t fileSeries = 0;
};

class Import {
public:
    Import(HostEnvironment& host, const ImportOptions& options)
        : options_(options), zones_(options.timeZone), people_(host), known_(host.database(), people_.domain()),
          series_(host.database(), "RepeatNum"), groups_(host.database(), "UserGroupNum"),
          writer_(host, people_, options.dryRun)
    {
    }

    ImportReport run(const std::vector<CalendarComponent>& calendars, const ImportProgress& progress)
    {
        for (const CalendarComponent& calendar : calendars)
            zones_.addFrom(calendar);
        std::vector<const CalendarComponent*> others;
        const std::vector<Bundle> bundles = bundlesOf(calendars, others);
        for (const CalendarComponent* component : others)
            skip(*component, component->name + " is no event and no to-do");
        for (std::size_t i = 0; i < bundles.size(); ++i) {
            importBundle(bundles[i]);
            if (progress)
                progress(static_cast<int>(i + 1), static_cast<int>(bundles.size()));
        }
        for (const std::string& name : zones_.unknownNames())
            report_.remarks.push_back({ImportRemark::Sort::changed, 0, "TZID=" + name,
                                       "nobody knows this time zone; its times are taken as local"});
        return std::move(report_);
    }

private:
    void remark(ImportRemark::Sort sort, const CalendarComponent& component, int line, std::string text)
    {
        report_.remarks.push_back({sort, line, shortened(subjectOf(component)), std::move(text)});
    }

    void skip(const CalendarComponent& component, const std::string& why, int line = 0)
    {
        ++report_.skipped;
        remark(ImportRemark::Sort::skipped, component, line > 0 ? line : component.number, why);
    }

    void importBundle(const Bundle& bundle)
    {
        const std::size_t remarksBefore = report_.remarks.size();
        const auto giveUp = [&](const std::string& why, int line) {
            writer_.undo();
            report_.remarks.resize(remarksBefore);
            skip(*bundle.components.front(), why, line);
        };
        try {
            const Plan plan = planOf(bundle, options_.lastDay, today(), zones_);
            for (const Plan::Remark& made : plan.remarks)
                remark(ImportRemark::Sort::changed, *made.component, made.component->number, made.text);
            for (const CalendarComponent* component : bundle.components)
                importRows(bundle, *component, plan);
            remarkOnLeftItems(bundle);
            const ItemWriter::Counts counts = writer_.finish();
            report_.components += static_cast<int>(bundle.components.size());
            report_.added += counts.added;
            report_.updated += counts.updated;
            report_.unchanged += counts.unchanged;
        } catch (const CalendarError& error) {
            giveUp(error.what(), error.line());
        } catch (const RunTimeError& error) {
            giveUp(error.what(), 0);
        }
    }

    /// An export may be of some days only, so that it tells nothing about the others.
    void remarkOnLeftItems(const Bundle& bundle)
    {
        const CalendarComponent& component = *bundle.components.front();
        if (component.find(userProperty))
            return;
        for (const std::int32_t id : known_.leftOf(bundle.kind, bundle.uid))
            remark(ImportRemark::Sort::changed, component, component.number,
                   "item " + std::to_string(id) + " of an earlier import is not in this file; it stays");
    }

    /// The rows of one component of a bundle, for all its users.
    void importRows(const Bundle& bundle, const CalendarComponent& component, const Plan& plan)
    {
        const std::vector<Participant> users = usersOf(component);
        std::optional<AlarmReminder> alarm;
        bool remarked = false;
        for (const PlannedRow& row : plan.rows) {
            if (row.component != &component)
                continue;
            if (!remarked)
                alarm = alarmOf(component, row.first);
            KeptLines kept = keptLinesOf(component, row.isExact, alarm && alarm->isExact);
            keepUnknownClients(component, kept);
            if (!std::exchange(remarked, true))
                remarkOnLines(kept);
            for (const auto& [user, fileSeries] : users) {
                const std::string subject = component.textOf("SUMMARY");
                const auto existing =
                    known_.take({bundle.kind, bundle.uid, std::string(ContentLine{row.occurrence}.value()), user,
                                 subject, row.times.day});
                ItemWriter::Row writing{bundle, row, user, alarm, kept.lines, existing};
                writing.series = seriesOf(bundle, component, plan, fileSeries, existing);
                writing.group = groupOf(bundle, component, users.size(), existing);
                writer_.write(writing);
            }
        }
    }

    std::optional<AlarmReminder> alarmOf(const CalendarComponent& component, const Span& first)
    {
        auto alarm = reminderOf(component, first, zones_);
        const bool hasAlarm =
            std::ranges::any_of(component.children, [](const auto& child) { return child.is("VALARM"); });
        if (!alarm && hasAlarm)
            remark(ImportRemark::Sort::kept, component, component.number, "its alarm has no time that can be read");
        if (alarm && !alarm->isExact)
            remark(ImportRemark::Sort::changed, component, component.number,
                   "the alarm " + std::to_string(alarm->minutesBefore) + " minutes before becomes a reminder of "
                       + alarm->period);
        return alarm;
    }

    /// A client that is not in the database stays where an export finds it.
    void keepUnknownClients(const CalendarComponent& component, KeptLines& kept)
    {
        for (const auto& [kind, property] :
             {std::pair(ClientKind::company, companyProperty), std::pair(ClientKind::contact, contactProperty)}) {
            const ContentLine* line = component.find(property);
            if (!line || people_.clientOf(kind, *line))
                continue;
            kept.lines.push_back(line->text);
            kept.remarkable.push_back(*line);
        }
    }

    void remarkOnLines(const KeptLines& kept)
    {
        for (const ContentLine& line : kept.remarkable) {
            if (!line.is("ATTENDEE") || !people_.userOfAttendee(line))
                report_.remarks.push_back({ImportRemark::Sort::kept, line.number, {}, shortened(line.text)});
        }
        for (const ContentLine& line : kept.lost)
            report_.remarks.push_back({ImportRemark::Sort::lost, line.number, {}, shortened(line.text)});
    }

    /// Known attendees, or else the one who imports.
    std::vector<Participant> usersOf(const CalendarComponent& component)
    {
        std::vector<Participant> users;
        const auto add = [&](std::optional<std::int32_t> user, std::int32_t fileSeries = 0) {
            if (user && std::ranges::find(users, *user, &Participant::userID) == users.end())
                users.push_back({*user, fileSeries});
        };
        const bool isOwn = component.find(userProperty) != nullptr;
        for (const ContentLine& line : component.lines) {
            if (line.is(userProperty)) {
                const auto user = people_.userOf(line);
                add(user, fileNumber(line.parameter(seriesParameter)));
                if (!user)
                    remark(ImportRemark::Sort::changed, component, line.number,
                           "there is no user '" + line.textValue() + "'");
            } else if (!isOwn && line.is("ATTENDEE")) {
                add(people_.userOfAttendee(line));
            }
        }
        // Who invites others takes part, also where the list of attendees leaves that out.
        if (const ContentLine* organizer = component.find("ORGANIZER"); !isOwn && organizer)
            add(people_.userOfAttendee(*organizer));
        if (users.empty())
            users.push_back({people_.defaultUser()});
        return users;
    }

    std::int32_t seriesOf(const Bundle& bundle, const CalendarComponent& component, const Plan& plan,
                          std::int32_t fileSeries, const std::optional<KnownItems::Row>& existing)
    {
        if (existing && existing->series > 0)
            return bundleSeries_[&bundle] = existing->series;
        if (component.find(userProperty))
            return fileSeries > 0 ? series_.forFileNumber(bundle.kind, fileSeries) : 0;
        std::set<std::string> occurrences;
        for (const PlannedRow& row : plan.rows)
            occurrences.insert(row.occurrence);
        if (occurrences.size() < 2)
            return 0;
        std::int32_t& number = bundleSeries_[&bundle];
        if (number == 0)
            number = series_.next(bundle.kind);
        return number;
    }

    std::int32_t groupOf(const Bundle& bundle, const CalendarComponent& component, std::size_t userCount,
                         const std::optional<KnownItems::Row>& existing)
    {
        if (existing && existing->group > 0)
            return bundleGroups_[&bundle] = existing->group;
        if (const std::int32_t number = fileNumber(component.textOf(groupProperty)); number > 0)
            return groups_.forFileNumber(bundle.kind, number);
        if (userCount < 2)
            return 0;
        std::int32_t& number = bundleGroups_[&bundle];
        if (number == 0)
            number = groups_.next(bundle.kind);
        return number;
    }

    const ImportOptions& options_;
    TimeZones zones_;
    People people_;
    KnownItems known_;
    FreeNumbers series_;
    FreeNumbers groups_;
    ItemWriter writer_;
    /// By the bundle, so that all its rows get the same number.
    std::map<const Bundle*, std::int32_t> bundleSeries_;
    std::map<const Bundle*, std::int32_t> bundleGroups_;
    ImportReport report_;
};

} // namespace

ImportReport importCalendars(HostEnvironment& host, const std::vector<CalendarComponent>& calendars,
                             const ImportOptions& options, const ImportProgress& progress)
{
    return Import(host, options).run(calendars, progress);
}

} // namespace qncal::host::icalendar
