#include "notifications/MailMessage.h"

#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>
#include <sstream>

namespace qncal::host {
namespace {

MailMessage plainMessage()
{
    return {{"Reed & Partners", "office@firm.example"}, {"Ann Reed", "ann@client.example"}, "Appointment", "Text\n",
            "notification-1.abc@firm.example",          Date::of(2026, 3, 2, 9, 5, 7)};
}

/// The header of a name with its folded lines, "" when there is none.
std::string header(const std::string& text, const std::string& name)
{
    const std::string head = text.substr(0, text.find("\r\n\r\n") + 2);
    std::size_t from = head.starts_with(name + ": ") ? 0 : head.find("\r\n" + name + ": ");
    if (from == std::string::npos)
        return {};
    from = head.find(": ", from) + 2;
    std::size_t to = head.find("\r\n", from);
    while (to + 2 < head.size() && head[to + 2] == ' ')
        to = head.find("\r\n", to + 2);
    return head.substr(from, to - from);
}

std::size_t headerCount(const std::string& text)
{
    std::size_t count = 0;
    const std::string head = text.substr(0, text.find("\r\n\r\n") + 2);
    for (std::size_t at = 0; at < head.size(); at = head.find("\r\n", at) + 2)
        count += head[at] != ' ' ? 1 : 0;
    return count;
}

TEST(MailMessageTest, WritesTheHeaders)
{
    const std::string text = mailText(plainMessage());
    EXPECT_EQ(header(text, "From"), "\"Reed & Partners\"\r\n <office@firm.example>");
    EXPECT_EQ(header(text, "To"), "\"Ann Reed\"\r\n <ann@client.example>");
    EXPECT_EQ(header(text, "Subject"), "Appointment");
    EXPECT_EQ(header(text, "Message-ID"), "<notification-1.abc@firm.example>");
    EXPECT_TRUE(header(text, "Date").starts_with("Mon, 2 Mar 2026 09:05:07 ")) << header(text, "Date");
    EXPECT_EQ(header(text, "Date").size(), std::string("Mon, 2 Mar 2026 09:05:07 +0000").size());
    EXPECT_EQ(header(text, "Content-Type"), "text/plain; charset=UTF-8");
    EXPECT_EQ(header(text, "Auto-Submitted"), "auto-generated");
}

/// Sets the time zone for its life.
class TimeZone {
public:
    explicit TimeZone(const char* zone)
    {
        if (const char* value = std::getenv("TZ"))
            before_ = value;
        setenv("TZ", zone, 1);
    }
    ~TimeZone()
    {
        if (before_)
            setenv("TZ", before_->c_str(), 1);
        else
            unsetenv("TZ");
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    std::optional<std::string> before_;
};

TEST(MailMessageTest, TheDateHasTheZoneOfItsMoment)
{
    const auto dateIn = [](const char* zone, Date date) {
        const TimeZone local(zone);
        MailMessage message = plainMessage();
        message.date = date;
        return header(mailText(message), "Date");
    };
    const char* eastern = "EST5EDT,M3.2.0,M11.1.0";
    EXPECT_EQ(dateIn(eastern, Date::of(2026, 3, 8, 1, 59, 59)), "Sun, 8 Mar 2026 01:59:59 -0500");
    EXPECT_EQ(dateIn(eastern, Date::of(2026, 3, 8, 3)), "Sun, 8 Mar 2026 03:00:00 -0400");
    EXPECT_EQ(dateIn("NST3:30", Date::of(2026, 3, 2, 9)), "Mon, 2 Mar 2026 09:00:00 -0330");
    EXPECT_EQ(dateIn("IST-5:30", Date::of(2026, 3, 2, 9)), "Mon, 2 Mar 2026 09:00:00 +0530");
    EXPECT_EQ(dateIn("UTC0", Date::of(2026, 3, 2, 9)), "Mon, 2 Mar 2026 09:00:00 +0000");
}

TEST(MailMessageTest, ARecipientWithoutANameStandsAlone)
{
    MailMessage message = plainMessage();
    message.to.name.clear();
    EXPECT_EQ(header(mailText(message), "To"), "<ann@client.example>");
}

TEST(MailMessageTest, WritesTheBodyInBase64WithNetworkLineEnds)
{
    MailMessage message = plainMessage();
    message.body = "Grüße\nZwei\r\n";
    const std::string text = mailText(message);
    EXPECT_EQ(text.substr(text.find("\r\n\r\n") + 4), "R3LDvMOfZQ0KWndlaQ0K\r\n");
    message.body = "a\rb\n\rc\r\r\nd";
    EXPECT_EQ(mailText(message).substr(text.find("\r\n\r\n") + 4), "YQ0KYg0KDQpjDQoNCmQ=\r\n")
        << "a, b, nothing, c, nothing, d";
    message.body = std::string(200, 'a');
    const std::string folded = mailText(message);
    const std::string body = folded.substr(folded.find("\r\n\r\n") + 4);
    EXPECT_EQ(body.find("\r\n"), 76u);
    EXPECT_TRUE(body.ends_with("=\r\n"));
}

struct HeaderRow {
    const char* name;
    std::string subject;
    std::string header;
};

class MailSubjectTest : public testing::TestWithParam<HeaderRow> {};

TEST_P(MailSubjectTest, IsSafeInAHeader)
{
    MailMessage message = plainMessage();
    message.subject = GetParam().subject;
    const std::string text = mailText(message);
    EXPECT_EQ(header(text, "Subject"), GetParam().header);
    EXPECT_EQ(headerCount(text), headerCount(mailText(plainMessage())));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MailSubjectTest,
    testing::Values(HeaderRow{"Plain", "Year end", "Year end"},
                    HeaderRow{"Umlaut", "Grüße", "=?UTF-8?B?R3LDvMOfZQ==?="},
                    HeaderRow{"LineBreak", "a\r\nBcc: all@firm.example", "a  Bcc: all@firm.example"},
                    HeaderRow{"LineBreakAlone", "a\nb\rc", "a b c"}, HeaderRow{"Null", std::string("a\0b", 3), "a b"},
                    HeaderRow{"LooksEncoded", "=?UTF-8?B?eA==?=", "=?UTF-8?B?PT9VVEYtOD9CP2VBPT0/PQ==?="},
                    HeaderRow{"NoUtf8", "a\xFF", "=?UTF-8?B?Ye+/vQ==?="},
                    HeaderRow{"Long", std::string(61, 'x'),
                              "=?UTF-8?B?eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4?=\r\n "
                              "=?UTF-8?B?eHh4eHh4eHh4eHh4eHh4eHh4eHh4eA==?="},
                    HeaderRow{"SplitsBetweenCodePoints", std::string(38, 'x') + "é",
                              "=?UTF-8?B?eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHh4eHg=?=\r\n "
                              "=?UTF-8?B?w6k=?="}),
    [](const auto& row) { return row.param.name; });

TEST(MailMessageTest, NoLineIsTooLongOrBeginsWithADot)
{
    MailMessage message = plainMessage();
    message.to.name = std::string(1500, 'n');
    message.subject = std::string(700, 's');
    message.to.address = std::string(240, 'a') + "@b.example";
    message.body = ".\n.dots\n" + std::string(2000, 'x');
    std::istringstream lines(mailText(message));
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(line.size(), 260u) << line;
        EXPECT_FALSE(line.starts_with('.')) << line;
        EXPECT_TRUE(line.ends_with('\r')) << line;
    }
}

TEST(MailMessageTest, NamesWithLineBreaksBringNoHeader)
{
    MailMessage message = plainMessage();
    message.to.name = "Ann\r\nBcc: all@firm.example";
    message.from.name = "A \"quoted\" \\ firm";
    const std::string text = mailText(message);
    EXPECT_EQ(header(text, "To"), "\"Ann  Bcc: all@firm.example\"\r\n <ann@client.example>");
    EXPECT_EQ(header(text, "From"), "\"A \\\"quoted\\\" \\\\ firm\"\r\n <office@firm.example>");
    EXPECT_EQ(headerCount(text), headerCount(mailText(plainMessage())));
}

struct AddressRow {
    const char* name;
    std::string address;
    bool valid;
};

class MailAddressTest : public testing::TestWithParam<AddressRow> {};

TEST_P(MailAddressTest, IsTakenOrRefused)
{
    EXPECT_EQ(isMailAddress(GetParam().address), GetParam().valid);
    MailMessage message = plainMessage();
    message.to.address = GetParam().address;
    if (GetParam().valid)
        EXPECT_NO_THROW(mailText(message));
    else
        EXPECT_THROW(mailText(message), RunTimeError);
}

INSTANTIATE_TEST_SUITE_P(
    Addresses, MailAddressTest,
    testing::Values(AddressRow{"Usual", "ann.reed+cal@client.example", true}, AddressRow{"Short", "a@b", true},
                    AddressRow{"Empty", "", false}, AddressRow{"NoAt", "ann", false},
                    AddressRow{"NothingBefore", "@b", false}, AddressRow{"NothingBehind", "a@", false},
                    AddressRow{"TwoAts", "a@b@c", false}, AddressRow{"Blank", "a b@c", false},
                    AddressRow{"LineBreak", "a@b\r\nRCPT TO:<c@d>", false}, AddressRow{"LineFeed", "a@b\n", false},
                    AddressRow{"Brackets", "a@b><c@d", false}, AddressRow{"List", "a@b,c@d", false},
                    AddressRow{"Null", std::string("a@b\0c", 5), false}, AddressRow{"NotAscii", "grüße@b", false},
                    AddressRow{"TooLong", "a@" + std::string(253, 'b'), false}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace qncal::host
