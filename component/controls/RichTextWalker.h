#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace qncal {

/// Walks a rich-text stream once and hands on what it meets to a derived class. Any bytes are taken: unknown control
/// words have no effect, and groups that lie deeper than anybody writes them count as part of the deepest one.
class RichTextWalker {
public:
    explicit RichTextWalker(std::string_view stream) : stream_(stream) {}
    virtual ~RichTextWalker() = default;
    RichTextWalker(const RichTextWalker&) = delete;
    RichTextWalker& operator=(const RichTextWalker&) = delete;

    /// The offset at which visible text ends: before the last closing brace.
    std::size_t walk();

protected:
    virtual void groupOpened() {}
    virtual void groupClosed() {}
    /// Every control word, before the character that it stands for, if any.
    virtual void controlWord(std::string_view /*word*/, std::optional<int> /*parameter*/) {}
    /// A character of the text with the place where it begins; paragraph and line breaks come as line feeds. The
    /// answer False ends the walk.
    virtual bool visibleCharacter(char32_t character, std::size_t offset) = 0;
    /// A character of a destination that is no text, such as a font's name.
    virtual void hiddenCharacter(char32_t /*character*/) {}

private:
    struct Group {
        bool hidden = false;
        int fallbackCharacters = 1;
    };
    static constexpr std::size_t deepestGroup = 256;

    void openGroup();
    void closeGroup();
    char32_t readRawCharacter();
    void readControl();
    void readControlWord();
    void applyControlWord(std::string_view word, bool hasParameter, int parameter, std::size_t start);
    void utf16Unit(std::uint16_t unit, std::size_t start);
    void character(char32_t c, std::size_t start);

    std::string_view stream_;
    std::vector<Group> groups_{{}};
    std::size_t groupsTooDeep_ = 0;
    std::size_t at_ = 0;
    std::size_t lastClose_ = std::string_view::npos;
    int skipFallback_ = 0;
    char32_t highSurrogate_ = 0;
    std::size_t highSurrogateStart_ = 0;
    bool running_ = true;
};

} // namespace qncal
