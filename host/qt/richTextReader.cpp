#include "qt/richTextReader.h"

#include "controls/RichTextWalker.h"
#include "controls/richTextStream.h"
#include "qt/convert.h"
#include "qt/richTextFormat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>
#include <unordered_map>

namespace qncal::host {

namespace {

/// Wider than any paper; indents beyond are damage.
constexpr int widestTwips = 31680;
constexpr int largestHalfPoints = 3276;
constexpr std::size_t mostTabStops = 32;
constexpr qsizetype longestFontName = 64;

struct CharacterState {
    int font = -1;
    int halfPoints = 0;
    int colour = 0;
    int highlight = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
};

struct ParagraphState {
    Qt::Alignment alignment = Qt::AlignLeft;
    int left = 0;
    int firstLine = 0;
    int right = 0;
    bool bullet = false;
    std::vector<int> tabStops;
};

/// A font's entry stands in the table itself or in a group of its own; what lies deeper is not its name.
enum class Destination { text, fontTable, font, ignored, colours, listText };

struct GroupState {
    CharacterState character;
    ParagraphState paragraph;
    Destination destination = Destination::text;
};

class Reader : public RichTextWalker {
public:
    Reader(std::string_view stream, QTextDocument& document) : RichTextWalker(stream), cursor_(&document) {}
    void read();

protected:
    void groupOpened() override;
    void groupClosed() override;
    void controlWord(std::string_view word, std::optional<int> parameter) override;
    bool visibleCharacter(char32_t character, std::size_t offset) override;
    void hiddenCharacter(char32_t character) override;

private:
    using Apply = void (*)(Reader& reader, int parameter);
    static const std::unordered_map<std::string_view, Apply>& words();

    CharacterState& characters() { return groups_.back().character; }
    ParagraphState& paragraph() { return groups_.back().paragraph; }
    void bulletForParagraph();
    void fontNumber(int font);
    void endFontName();
    void endColour();

    enum class Break { none, line, paragraph };
    void makeBreak();
    void flush();
    void formatParagraph(const ParagraphState& state);
    QTextCharFormat characterFormat() const;
    QColor colourAt(int index) const;

    QTextCursor cursor_;
    std::vector<GroupState> groups_{{}};
    std::unordered_map<int, QString> fonts_;
    /// The font of characters that name none.
    int defaultFont_ = -1;
    int namedFont_ = 0;
    QString fontName_;
    std::vector<QColor> colours_;
    QColor nextColour_;
    int red_ = 0;
    int green_ = 0;
    bool colourGiven_ = false;

    QString run_;
    QTextCharFormat runFormat_;
    ParagraphState lastParagraph_;
    /// The last break is made only when something follows: at the end it ends the text.
    Break break_ = Break::none;
    bool isLineBreak_ = false;
    bool formatChanged_ = true;
};

int twips(int value) { return std::clamp(value, -widestTwips, widestTwips); }

/// The words that format; a missing parameter reads as 1, which is what a bare "\b" means.
const std::unordered_map<std::string_view, Reader::Apply>& Reader::words()
{
    // A line of any shape is shown as a plain one.
    constexpr Apply underline = [](Reader& r, int on) { r.characters().underline = on != 0; };
    constexpr Apply highlight = [](Reader& r, int colour) { r.characters().highlight = colour; };
    static const std::unordered_map<std::string_view, Apply> table{
        {"plain", [](Reader& r, int) { r.characters() = {}; }},
        {"b", [](Reader& r, int on) { r.characters().bold = on != 0; }},
        {"i", [](Reader& r, int on) { r.characters().italic = on != 0; }},
        {"ul", underline},
        {"uld", underline},
        {"uldash", underline},
        {"uldb", underline},
        {"ulth", underline},
        {"ulw", underline},
        {"ulwave", underline},
        {"ulnone", [](Reader& r, int) { r.characters().underline = false; }},
        {"strike", [](Reader& r, int on) { r.characters().strikeOut = on != 0; }},
        {"deff", [](Reader& r, int font) { r.defaultFont_ = font; }},
        {"f", [](Reader& r, int font) { r.fontNumber(font); }},
        {"fs", [](Reader& r, int size) { r.characters().halfPoints = std::clamp(size, 0, largestHalfPoints); }},
        {"cf", [](Reader& r, int colour) { r.characters().colour = colour; }},
        {"highlight", highlight},
        {"cb", highlight},
        {"chcbpat", highlight},
        {"pard", [](Reader& r, int) { r.paragraph() = {}; }},
        {"ql", [](Reader& r, int) { r.paragraph().alignment = Qt::AlignLeft; }},
        {"qc", [](Reader& r, int) { r.paragraph().alignment = Qt::AlignHCenter; }},
        {"qr", [](Reader& r, int) { r.paragraph().alignment = Qt::AlignRight; }},
        {"qj", [](Reader& r, int) { r.paragraph().alignment = Qt::AlignJustify; }},
        {"li", [](Reader& r, int indent) { r.paragraph().left = std::max(twips(indent), 0); }},
        {"fi", [](Reader& r, int indent) { r.paragraph().firstLine = twips(indent); }},
        {"ri", [](Reader& r, int indent) { r.paragraph().right = std::max(twips(indent), 0); }},
        {"tx",
         [](Reader& r, int position) {
             if (position > 0 && r.paragraph().tabStops.size() < mostTabStops)
                 r.paragraph().tabStops.push_back(twips(position));
         }},
        {"pnlvlblt", [](Reader& r, int) { r.bulletForParagraph(); }},
        {"listtext", [](Reader& r, int) { r.groups_.back().destination = Destination::listText; }},
        {"fonttbl", [](Reader& r, int) { r.groups_.back().destination = Destination::fontTable; }},
        {"colortbl", [](Reader& r, int) { r.groups_.back().destination = Destination::colours; }},
        {"red",
         [](Reader& r, int part) {
             r.red_ = std::clamp(part, 0, 255);
             r.colourGiven_ = true;
         }},
        {"green", [](Reader& r, int part) { r.green_ = std::clamp(part, 0, 255); }},
        {"blue", [](Reader& r, int part) { r.nextColour_ = QColor(r.red_, r.green_, std::clamp(part, 0, 255)); }},
    };
    return table;
}

void Reader::read()
{
    walk();
    flush();
    if (break_ == Break::none)
        formatParagraph(lastParagraph_);
}

void Reader::groupOpened()
{
    groups_.push_back(groups_.back());
    Destination& destination = groups_.back().destination;
    if (destination == Destination::fontTable)
        destination = Destination::font;
    else if (destination == Destination::font)
        destination = Destination::ignored;
}

void Reader::groupClosed()
{
    const Destination destination = groups_.back().destination;
    if (destination == Destination::font || destination == Destination::fontTable)
        endFontName();
    groups_.pop_back();
    formatChanged_ = true;
}

void Reader::controlWord(std::string_view word, std::optional<int> parameter)
{
    isLineBreak_ = word == "line";
    if (const auto found = words().find(word); found != words().end()) {
        found->second(*this, parameter.value_or(1));
        formatChanged_ = true;
    }
}

/// The description of a bullet is a group of its own inside of the paragraph that it speaks of.
void Reader::bulletForParagraph()
{
    const std::size_t depth = groups_.size();
    for (std::size_t level = depth > 2 ? depth - 2 : 0; level < depth; ++level)
        groups_[level].paragraph.bullet = true;
}

void Reader::fontNumber(int font)
{
    if (groups_.back().destination == Destination::text)
        characters().font = font;
    else
        namedFont_ = font;
}

void Reader::hiddenCharacter(char32_t character)
{
    const Destination destination = groups_.back().destination;
    if (destination == Destination::listText) {
        // The other list texts are numbers; they are lost, as the numbering of a list that is not kept would be wrong.
        constexpr std::u32string_view bullets = U"\u00B7\u2022\u25AA\u25CF\uF0A7\uF0B7";
        if (bullets.find(character) != std::u32string_view::npos)
            bulletForParagraph();
    } else if (destination == Destination::font || destination == Destination::fontTable) {
        if (character == ';')
            endFontName();
        else if (character > 0x20 || (character == 0x20 && !fontName_.isEmpty()))
            fontName_ += QString::fromUcs4(&character, 1);
    } else if (destination == Destination::colours && character == ';') {
        endColour();
    }
}

void Reader::endFontName()
{
    fontName_.removeIf([](QChar c) { return c == '{' || c == '}' || c == '\\' || c == ';' || !c.isPrint(); });
    const QString name = fontName_.left(longestFontName).trimmed();
    if (!name.isEmpty())
        fonts_.emplace(namedFont_, name);
    fontName_.clear();
}

void Reader::endColour()
{
    constexpr std::size_t mostColours = 4096;
    if (colours_.size() < mostColours)
        colours_.push_back(colourGiven_ ? nextColour_ : QColor());
    nextColour_ = {};
    red_ = green_ = 0;
    colourGiven_ = false;
}

bool Reader::visibleCharacter(char32_t character, std::size_t)
{
    if (character == '\n') {
        makeBreak();
        break_ = std::exchange(isLineBreak_, false) ? Break::line : Break::paragraph;
        flush();
        if (break_ == Break::paragraph)
            formatParagraph(paragraph());
        return true;
    }
    makeBreak();
    if (formatChanged_) {
        const QTextCharFormat format = characterFormat();
        if (format != runFormat_)
            flush();
        runFormat_ = format;
        formatChanged_ = false;
    }
    // Characters that a document keeps for itself, and halves of pairs.
    const bool isOwn = (character < 0x20 && character != '\t') || (character >= 0xD800 && character < 0xE000)
                       || (character >= 0xFDD0 && character < 0xFDF0) || character == 0x2028 || character == 0x2029
                       || (character & 0xFFFE) == 0xFFFE || character == 0xFFFC;
    const char32_t shown = isOwn ? 0xFFFD : character;
    run_ += QString::fromUcs4(&shown, 1);
    lastParagraph_ = paragraph();
    return true;
}

void Reader::makeBreak()
{
    const Break waiting = std::exchange(break_, Break::none);
    if (waiting == Break::line) {
        cursor_.insertText(QString(QChar::LineSeparator), runFormat_);
    } else if (waiting == Break::paragraph) {
        cursor_.insertBlock(QTextBlockFormat(), runFormat_);
        lastParagraph_ = paragraph();
    }
}

void Reader::flush()
{
    if (!run_.isEmpty())
        cursor_.insertText(run_, runFormat_);
    run_.clear();
}

void Reader::formatParagraph(const ParagraphState& state)
{
    QTextBlockFormat format;
    format.setAlignment(state.alignment);
    format.setLeftMargin(state.left / twipsPerPixel);
    format.setRightMargin(state.right / twipsPerPixel);
    if (state.bullet)
        format.setProperty(bulletIndentProperty, state.firstLine);
    else
        format.setTextIndent(state.firstLine / twipsPerPixel);
    QList<QTextOption::Tab> tabs;
    for (const int position : state.tabStops)
        tabs += QTextOption::Tab(position / twipsPerPixel, QTextOption::LeftTab);
    if (!tabs.isEmpty())
        format.setTabPositions(tabs);
    cursor_.setBlockFormat(format);
    if (!state.bullet)
        return;
    if (QTextList* list = cursor_.block().previous().textList()) {
        list->add(cursor_.block());
    } else {
        QTextListFormat bullets;
        bullets.setStyle(QTextListFormat::ListDisc);
        bullets.setIndent(0);
        cursor_.createList(bullets);
    }
}

QTextCharFormat Reader::characterFormat() const
{
    const CharacterState& state = groups_.back().character;
    QTextCharFormat format;
    if (const auto font = fonts_.find(state.font < 0 ? defaultFont_ : state.font); font != fonts_.end())
        format.setFontFamilies({font->second});
    if (state.halfPoints > 0)
        format.setFontPointSize(state.halfPoints / 2.0);
    if (state.bold)
        format.setFontWeight(QFont::Bold);
    if (state.italic)
        format.setFontItalic(true);
    if (state.underline)
        format.setFontUnderline(true);
    if (state.strikeOut)
        format.setFontStrikeOut(true);
    if (const QColor colour = colourAt(state.colour); colour.isValid() && colour != Qt::black)
        format.setForeground(colour);
    if (const QColor colour = colourAt(state.highlight); colour.isValid())
        format.setBackground(colour);
    return format;
}

QColor Reader::colourAt(int index) const
{
    return index > 0 && static_cast<std::size_t>(index) < colours_.size() ? colours_[static_cast<std::size_t>(index)]
                                                                          : QColor();
}

} // namespace

void readRichText(std::string_view richText, QTextDocument& document)
{
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    document.clear();
    if (isRichTextStream(richText))
        Reader(richText, document).read();
    else
        document.setPlainText(toQt(richText));
    document.setUndoRedoEnabled(undo);
    document.setModified(false);
}

QString visibleText(const QTextDocument& document)
{
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
    return text;
}

} // namespace qncal::host
