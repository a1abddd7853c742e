#include "host/store/StoreFactory.h"

#include "utilities/RunTimeError.h"

#include <algorithm>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace qncal::host {
namespace {

struct NaiveRecord {
    std::string subject;
    std::int32_t user = 0;
};

/// What the contract means, said as simply as possible: all records in a map, and a record set is a list of keys that
/// was taken when it was opened.
class NaiveSet {
public:
    NaiveSet(std::map<std::int32_t, NaiveRecord>& records, std::optional<std::int32_t> user, bool bySubject)
        : records_(records)
    {
        for (const auto& [id, record] : records)
            if (!user || record.user == *user)
                keys_.push_back(id);
        if (bySubject)
            std::ranges::stable_sort(keys_, {}, [&](std::int32_t id) { return records_.at(id).subject; });
    }

    bool isLive(std::size_t place) const { return records_.contains(keys_[place]); }
    bool hasRecords() const { return count() > 0; }
    bool isEOF() const { return index_ == static_cast<std::ptrdiff_t>(keys_.size()); }
    NaiveRecord* current()
    {
        if (index_ < 0 || isEOF() || currentDeleted_)
            return nullptr;
        const auto found = records_.find(keys_[place()]);
        return found == records_.end() ? nullptr : &found->second;
    }
    std::int32_t key() const { return keys_[place()]; }
    void moveNext()
    {
        if (isEOF())
            return;
        if (!closeUp())
            ++index_;
        while (!isEOF() && !isLive(place()))
            ++index_;
    }
    void movePrevious()
    {
        if (index_ < 0)
            return;
        closeUp();
        --index_;
        while (index_ >= 0 && !isLive(place()))
            --index_;
    }
    std::int32_t count() const
    {
        return static_cast<std::int32_t>(
            std::ranges::count_if(keys_, [&](std::int32_t id) { return records_.contains(id); }));
    }
    std::int32_t position() const { return static_cast<std::int32_t>(index_) + 1; }
    void setPosition(std::int32_t position)
    {
        closeUp();
        index_ = std::min<std::ptrdiff_t>(position - 1, static_cast<std::ptrdiff_t>(keys_.size()));
    }
    bool find(std::int32_t user)
    {
        const auto found = std::ranges::find_if(
            keys_, [&](std::int32_t id) { return records_.contains(id) && records_.at(id).user == user; });
        if (found == keys_.end())
            return false;
        const std::int32_t id = *found;
        closeUp();
        index_ = std::ranges::find(keys_, id) - keys_.begin();
        return true;
    }
    void add(std::int32_t id)
    {
        closeUp();
        keys_.push_back(id);
        index_ = static_cast<std::ptrdiff_t>(keys_.size()) - 1;
    }
    void deleteCurrent()
    {
        records_.erase(key());
        currentDeleted_ = true;
    }

private:
    std::size_t place() const { return static_cast<std::size_t>(index_); }
    /// The place of a record deleted here closes up when it is left.
    bool closeUp()
    {
        if (!currentDeleted_)
            return false;
        keys_.erase(keys_.begin() + index_);
        currentDeleted_ = false;
        return true;
    }

    std::map<std::int32_t, NaiveRecord>& records_;
    std::vector<std::int32_t> keys_;
    std::ptrdiff_t index_ = 0;
    bool currentDeleted_ = false;
};

class RandomOperations : public StoreTest {
protected:
    struct Open {
        std::int32_t handle;
        NaiveSet naive;
    };

    int random(int below) { return std::uniform_int_distribution<int>(0, below - 1)(generator_); }

    Open open()
    {
        const bool filtered = random(2) == 0;
        const bool bySubject = random(2) == 0;
        const int user = random(4);
        // A condition or an order is what fixes a set, as the naive one is fixed.
        const bool byNothing = filtered && !bySubject && random(2) == 0;
        const std::string sql = "SELECT Appointments.* FROM Appointments"
                                + (filtered ? " WHERE UserIDNum = " + std::to_string(user) : std::string())
                                + (byNothing   ? ""
                                   : bySubject ? " ORDER BY Appointments.Subject"
                                               : " ORDER BY Appointments.AppointmentID")
                                + ";";
        Open opened{openUpdatable(sql), {records_, filtered ? std::optional(user) : std::nullopt, bySubject}};
        EXPECT_EQ(store().hasRecords(opened.handle), opened.naive.hasRecords());
        return opened;
    }

    void add(Open& set)
    {
        const NaiveRecord record{"s" + std::to_string(random(1000)), random(4)};
        store().addNew(set.handle);
        store().setNewField(set.handle, "Subject", record.subject);
        this->set(set.handle, "UserIDNum", std::to_string(record.user));
        const auto id = store().getField(set.handle, "AppointmentID").toInteger();
        EXPECT_FALSE(records_.contains(id));
        store().update(set.handle);
        records_[id] = record;
        set.naive.add(id);
    }

    /// So many that sets do not fit into one block of keys.
    void addMany()
    {
        const auto handle = openUpdatable("SELECT Appointments.* FROM Appointments;");
        for (int i = 0; i < 1200; ++i) {
            const NaiveRecord record{"s" + std::to_string(random(1000)), random(4)};
            store().addNew(handle);
            store().setNewField(handle, "Subject", record.subject);
            store().setNewField(handle, "UserIDNum", std::to_string(record.user));
            records_[store().getField(handle, "AppointmentID").toInteger()] = record;
            store().update(handle);
        }
        store().closeRecordset(handle);
    }

    void readOrWrite(Open& set, int what)
    {
        NaiveRecord* const record = set.naive.current();
        if (!record) {
            EXPECT_THROW(store().getField(set.handle, "Subject"), RunTimeError);
            return;
        }
        if (what == 0) {
            EXPECT_TRUE(store().deleteRecord(set.handle));
            set.naive.deleteCurrent();
            return;
        }
        if (what < 4) {
            record->subject = "w" + std::to_string(random(1000));
            EXPECT_TRUE(this->set(set.handle, "Subject", record->subject));
        }
        EXPECT_EQ(store().getField(set.handle, "AppointmentID"), Variant(set.naive.key()));
        EXPECT_EQ(store().getField(set.handle, "Subject"), Variant(record->subject));
        EXPECT_EQ(store().getField(set.handle, "UserIDNum"), Variant(record->user));
    }

    void find(Open& set)
    {
        const int user = random(5);
        EXPECT_EQ(StoreTest::find(set.handle, "UserIDNum", std::to_string(user)), set.naive.find(user));
    }

    void operate(Open& set)
    {
        switch (random(8)) {
        case 0:
            add(set);
            break;
        case 1:
            store().moveNext(set.handle);
            set.naive.moveNext();
            break;
        case 2:
            store().movePrevious(set.handle);
            set.naive.movePrevious();
            break;
        case 3: {
            const std::int32_t position = 1 + random(set.naive.count() + 2);
            store().setPosition(set.handle, position);
            set.naive.setPosition(position);
            break;
        }
        case 4:
            find(set);
            break;
        default:
            readOrWrite(set, random(8));
            break;
        }
        EXPECT_EQ(store().isEOF(set.handle), set.naive.isEOF());
        EXPECT_EQ(store().getPosition(set.handle), set.naive.position());
        EXPECT_EQ(store().getRecordCount(set.handle), set.naive.count());
        EXPECT_EQ(store().hasRecords(set.handle), set.naive.hasRecords());
    }

    void compareAll()
    {
        std::map<std::int32_t, std::string> stored;
        const auto handle = openReadOnly("SELECT Appointments.* FROM Appointments;");
        for (; !store().isEOF(handle); store().moveNext(handle))
            stored[store().getField(handle, "AppointmentID").toInteger()] =
                store().getField(handle, "Subject").toText();
        store().closeRecordset(handle);
        std::map<std::int32_t, std::string> expected;
        for (const auto& [id, record] : records_)
            expected[id] = record.subject;
        EXPECT_EQ(stored, expected);
    }

    std::mt19937 generator_;
    std::map<std::int32_t, NaiveRecord> records_;
};

INSTANTIATE_TEST_SUITE_P(Stores, RandomOperations, ::testing::ValuesIn(storeFactories()),
                         [](const auto& store) { return store.param.name; });

TEST_P(RandomOperations, DoWhatANaiveStoreDoes)
{
    const char* const given = std::getenv("QNCAL_TEST_SEED");
    const unsigned seed = given ? static_cast<unsigned>(std::stoul(given)) : std::random_device{}();
    SCOPED_TRACE("QNCAL_TEST_SEED=" + std::to_string(seed));
    generator_.seed(seed);
    for (int round = 0; round < 30 && !HasFailure(); ++round) {
        if (round == 20)
            addMany();
        std::vector<Open> sets;
        for (int i = 0; i < 3; ++i)
            sets.push_back(open());
        for (int operation = 0; operation < 100 && !HasFailure(); ++operation) {
            SCOPED_TRACE("round " + std::to_string(round) + ", operation " + std::to_string(operation));
            operate(sets[static_cast<std::size_t>(random(3))]);
        }
        for (const Open& set : sets)
            store().closeRecordset(set.handle);
        step();
        compareAll();
    }
}

} // namespace
} // namespace qncal::host
