#include "controller/script/lexer.h"

#include "controller/script/limits.h"

#include <array>
#include <unordered_map>

namespace controller::script {

namespace {

const std::unordered_map<std::string_view, Keyword> kKeywords{
    {"GLOBAL", Keyword::Global},   {"PROC", Keyword::Proc},
    {"ENDPROC", Keyword::EndProc}, {"VAR", Keyword::Var},
    {"IF", Keyword::If},           {"ELSEIF", Keyword::ElseIf},
    {"ELSE", Keyword::Else},       {"ENDIF", Keyword::EndIf},
    {"WHILE", Keyword::While},     {"ENDWHILE", Keyword::EndWhile},
    {"FOR", Keyword::For},         {"FROM", Keyword::From},
    {"TO", Keyword::To},           {"ENDFOR", Keyword::EndFor},
    {"RETURN", Keyword::Return},   {"PAUSE", Keyword::Pause},
    {"AND", Keyword::And},         {"OR", Keyword::Or},
    {"NOT", Keyword::Not},         {"true", Keyword::True},
    {"false", Keyword::False},
};

/// Longer ones first.
constexpr std::array<std::string_view, 16> kSymbols{":=", "==", "<>", "<=", ">=", "<", ">", "+",
                                                    "-",  "*",  "/",  "(",  ")",  ",", ".", "="};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

/// Whether a byte begins a character; those after the first one have the bits 10 on top.
bool beginsCharacter(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

/// Bytes of the character that such a byte begins; 0 when it begins none.
std::size_t lengthOfCharacter(char c)
{
    const unsigned char first = static_cast<unsigned char>(c);
    if (first < 0x80)
        return first >= ' ' && first != 0x7F ? 1 : 0;
    return first < 0xC2 || first > 0xF4 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

class Lexer
{
public:
    Lexer(std::string_view text, Problems *problems) : text_(text), problems_(problems) {}

    std::vector<Token> run()
    {
        if (text_.substr(0, 3) == "\xEF\xBB\xBF") // byte-order mark
            text_.remove_prefix(3);
        tokens_.reserve(text_.size() / 4 + 1);
        while (at_ < text_.size())
            next();
        add(TokenKind::LineEnd, 0);
        add(TokenKind::End, 0);
        return std::move(tokens_);
    }

private:
    char peek(std::size_t ahead = 0) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0'; }

    /// Length of the bytes from `from` on for which `belongs` holds.
    template <typename Test> std::size_t spanOf(Test belongs, std::size_t from = 0) const
    {
        while (at_ + from < text_.size() && belongs(text_[at_ + from]))
            ++from;
        return from;
    }

    void skip(std::size_t length)
    {
        for (const char c : text_.substr(at_, length))
            place_.column += beginsCharacter(c) ? 1 : 0;
        at_ += length;
    }

    Token &add(TokenKind kind, std::size_t length)
    {
        tokens_.push_back({kind, Keyword::Global, text_.substr(at_, length), place_});
        skip(length);
        behind_ = place_;
        return tokens_.back();
    }

    void bad(std::size_t length, std::string what)
    {
        problems_->add(place_, std::move(what));
        add(TokenKind::Bad, length);
    }

    void next()
    {
        const char c = peek();
        if (c == '\n')
            endLine();
        else if (c == ' ' || c == '\t' || (c == '\r' && peek(1) == '\n'))
            skip(1);
        else if (c == '!')
            skip(spanOf([](char in) { return in != '\n'; }));
        else if (isLetter(c))
            name();
        else if (isDigit(c))
            number();
        else if (c == '"')
            quotedText();
        else
            symbol();
    }

    void endLine()
    {
        const Place end = behind_.line == place_.line ? behind_ : place_;
        add(TokenKind::LineEnd, 1).place = end; // a comment is no part of it
        ++place_.line;
        place_.column = 1;
    }

    void name()
    {
        const std::size_t length = spanOf([](char c) { return isLetter(c) || isDigit(c); });
        const std::string_view text = text_.substr(at_, length);
        if (length > kMaxName)
            return bad(length, "the name " + quoted(text) + " has more than " + std::to_string(kMaxName) +
                                   " characters");
        const auto keyword = kKeywords.find(text);
        if (keyword == kKeywords.end())
            add(TokenKind::Name, length);
        else
            add(TokenKind::Keyword, length).keyword = keyword->second;
    }

    void number()
    {
        TokenKind kind = TokenKind::Int;
        std::size_t length = spanOf(isDigit);
        if (peek(length) == '.' && isDigit(peek(length + 1))) {
            kind = TokenKind::Double;
            length = spanOf(isDigit, length + 1);
        }
        const std::size_t sign = peek(length + 1) == '-' || peek(length + 1) == '+' ? 1 : 0;
        if ((peek(length) == 'e' || peek(length) == 'E') && isDigit(peek(length + 1 + sign))) {
            kind = TokenKind::Double;
            length = spanOf(isDigit, length + 1 + sign);
        }
        const std::size_t whole = spanOf([](char c) { return isLetter(c) || isDigit(c); }, length);
        if (whole == length)
            add(kind, length);
        else
            bad(whole, quoted(text_.substr(at_, whole)) + " is no number");
    }

    /// Two quotes inside a text stand for one.
    void quotedText()
    {
        std::size_t length = 1;
        for (;;) {
            length = spanOf([](char c) { return c != '"' && c != '\n'; }, length);
            if (peek(length) != '"')
                return bad(length, "the text has no closing quote in its line");
            if (peek(length + 1) != '"')
                break;
            length += 2;
        }
        if (length > kMaxText)
            return bad(length + 1, "the text is longer than " + std::to_string(kMaxText) + " bytes");
        Token &token = add(TokenKind::Text, length + 1);
        token.text = token.text.substr(1, length - 1);
    }

    void symbol()
    {
        const std::string_view rest = text_.substr(at_);
        for (const std::string_view symbol : kSymbols)
            if (rest.substr(0, symbol.size()) == symbol) {
                add(TokenKind::Symbol, symbol.size());
                return;
            }
        unknownCharacter();
    }

    void unknownCharacter()
    {
        const std::size_t length = spanOf([](char c) { return !beginsCharacter(c); }, 1);
        if (length == lengthOfCharacter(peek()))
            return bad(length, "the character " + quoted(text_.substr(at_, length)) + " has no meaning here");
        const int byte = static_cast<unsigned char>(peek());
        bad(length, "the byte " + std::to_string(byte) + " is no part of a text");
    }

    std::string_view text_;
    Problems *problems_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    Place place_;
    Place behind_; ///< the last token
};

} // namespace

std::vector<Token> tokenize(std::string_view text, Problems *problems)
{
    return Lexer(text, problems).run();
}

} // namespace controller::script
