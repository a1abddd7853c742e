#include "qt/richTextWriter.h"

#include "controls/richTextStream.h"
#include "qt/convert.h"
#include "qt/richTextFormat.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <cmath>

namespace qncal::host {

namespace {

/// A font and a size, or a colour, by its number in the stream's tables.
struct CharacterState {
    qsizetype font = 0;
    int halfPoints = standardHalfPoints;
    qsizetype colour = 0;
    qsizetype highlight = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
};

class Writer {
public:
    std::string write(const QTextDocument& document);

private:
    void writeBlock(const QTextBlock& block);
    void writeParagraphFormat(const QTextBlock& block);
    void writeRun(const QTextFragment& fragment);
    CharacterState stateOf(const QTextCharFormat& format);
    void writeChanges(const CharacterState& to);
    qsizetype numberOf(const QColor& colour);
    std::string tables() const;

    QStringList fonts_{standardFont};
    QList<QColor> colours_;
    CharacterState state_;
    std::string body_;
};

void word(std::string& stream, const char* name) { (stream += '\\') += name; }
void word(std::string& stream, const char* name, qsizetype parameter)
{
    word(stream, name);
    stream += std::to_string(parameter);
}
void toggle(std::string& stream, const char* name, bool from, bool to)
{
    if (from == to)
        return;
    word(stream, name);
    if (!to)
        stream += '0';
}
void number(std::string& stream, const char* name, qsizetype from, qsizetype to)
{
    if (from != to)
        word(stream, name, to);
}

int twips(qreal pixels) { return static_cast<int>(std::lround(pixels * twipsPerPixel)); }

std::string Writer::write(const QTextDocument& document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        writeBlock(block);
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0" + tables() + "\r\n\\viewkind4\\uc1\\pard\\f0\\fs"
           + std::to_string(standardHalfPoints) + "\r\n" + body_ + "}\r\n";
}

void Writer::writeBlock(const QTextBlock& block)
{
    writeParagraphFormat(block);
    for (auto run = block.begin(); !run.atEnd(); ++run)
        writeRun(run.fragment());
    body_ += "\\par\r\n";
}

void Writer::writeParagraphFormat(const QTextBlock& block)
{
    const QTextBlockFormat format = block.blockFormat();
    const bool bullet = block.textList() != nullptr;
    word(body_, "pard");
    if (bullet)
        body_ += "{\\pntext\\f0\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf0\\pnindent0{\\pntxtb\\'b7}}";
    number(body_, "fi", 0, bullet ? format.intProperty(bulletIndentProperty) : twips(format.textIndent()));
    number(body_, "li", 0, twips(format.leftMargin()));
    number(body_, "ri", 0, twips(format.rightMargin()));
    const Qt::Alignment alignment = format.alignment() & Qt::AlignHorizontal_Mask;
    if (alignment == Qt::AlignHCenter)
        word(body_, "qc");
    else if (alignment == Qt::AlignRight)
        word(body_, "qr");
    else if (alignment == Qt::AlignJustify)
        word(body_, "qj");
    for (const QTextOption::Tab& tab : format.tabPositions())
        word(body_, "tx", twips(tab.position));
    // The blank ends a control word; behind a group it would be text.
    if (!body_.ends_with('}'))
        body_ += ' ';
}

void Writer::writeRun(const QTextFragment& fragment)
{
    writeChanges(stateOf(fragment.charFormat()));
    const QStringList lines = fragment.text().split(QChar::LineSeparator);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0)
            body_ += "\\line ";
        body_ += escapedForStream(fromQt(lines.at(line)));
    }
}

CharacterState Writer::stateOf(const QTextCharFormat& format)
{
    CharacterState state;
    if (const QStringList families = format.fontFamilies().toStringList(); !families.isEmpty()) {
        if (!fonts_.contains(families.first()))
            fonts_ += families.first();
        state.font = fonts_.indexOf(families.first());
    }
    if (format.fontPointSize() > 0)
        state.halfPoints = static_cast<int>(std::lround(format.fontPointSize() * 2));
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        state.colour = numberOf(format.foreground().color());
    if (format.hasProperty(QTextFormat::BackgroundBrush))
        state.highlight = numberOf(format.background().color());
    state.bold = format.fontWeight() > QFont::Medium;
    state.italic = format.fontItalic();
    state.underline = format.fontUnderline();
    state.strikeOut = format.fontStrikeOut();
    return state;
}

void Writer::writeChanges(const CharacterState& to)
{
    std::string changes;
    number(changes, "f", state_.font, to.font);
    number(changes, "fs", state_.halfPoints, to.halfPoints);
    number(changes, "cf", state_.colour, to.colour);
    number(changes, "highlight", state_.highlight, to.highlight);
    toggle(changes, "b", state_.bold, to.bold);
    toggle(changes, "i", state_.italic, to.italic);
    if (state_.underline != to.underline)
        word(changes, to.underline ? "ul" : "ulnone");
    toggle(changes, "strike", state_.strikeOut, to.strikeOut);
    if (!changes.empty())
        body_ += changes + ' ';
    state_ = to;
}

/// 0 is the colour of the paper's ink.
qsizetype Writer::numberOf(const QColor& colour)
{
    if (!colours_.contains(colour))
        colours_ += colour;
    return colours_.indexOf(colour) + 1;
}

std::string Writer::tables() const
{
    std::string tables = "{\\fonttbl";
    for (qsizetype font = 0; font < fonts_.size(); ++font)
        tables +=
            "{\\f" + std::to_string(font) + "\\fnil\\fcharset0 " + escapedForStream(fromQt(fonts_.at(font))) + ";}";
    tables += '}';
    if (colours_.isEmpty())
        return tables;
    tables += "\r\n{\\colortbl ;";
    for (const QColor& colour : colours_) {
        word(tables, "red", colour.red());
        word(tables, "green", colour.green());
        word(tables, "blue", colour.blue());
        tables += ';';
    }
    return tables + '}';
}

} // namespace

std::string writeRichText(const QTextDocument& document) { return Writer().write(document); }

} // namespace qncal::host
