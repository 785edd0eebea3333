#include "controller/script/expression_parser.h"

#include "controller/script/limits.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace controller::script {

namespace {

constexpr int kOr = 0, kAnd = 1, kComparison = 2, kSum = 3, kProduct = 4;

struct OperatorText
{
    std::string_view text;
    Operator op;
    int level; ///< higher ones bind tighter
};

constexpr OperatorText kOperators[] = {
    {"==", Operator::Equal, kComparison},
    {"<>", Operator::NotEqual, kComparison},
    {"<", Operator::Less, kComparison},
    {"<=", Operator::LessEqual, kComparison},
    {">", Operator::Greater, kComparison},
    {">=", Operator::GreaterEqual, kComparison},
    {"+", Operator::Add, kSum},
    {"-", Operator::Subtract, kSum},
    {"*", Operator::Multiply, kProduct},
    {"/", Operator::Divide, kProduct},
};

/// False when the token is no operator of that level.
bool operatorOf(const Token &token, int level, Operator *op)
{
    if (token.kind == TokenKind::Keyword) {
        *op = token.keyword == Keyword::Or ? Operator::Or : Operator::And;
        return (token.keyword == Keyword::Or && level == kOr) ||
               (token.keyword == Keyword::And && level == kAnd);
    }
    for (const OperatorText &known : kOperators)
        if (token.kind == TokenKind::Symbol && token.text == known.text && known.level == level) {
            *op = known.op;
            return true;
        }
    return false;
}

std::string shown(const Token &token)
{
    if (token.kind == TokenKind::LineEnd || token.kind == TokenKind::End)
        return "the end of the line";
    return token.kind == TokenKind::Text ? "a text" : quoted(token.text);
}

/// A text without the doubling of its quotes.
std::string withoutDoubled(std::string_view text)
{
    std::string single;
    for (std::size_t i = 0; i < text.size(); ++i) {
        single += text[i];
        i += text[i] == '"' ? 1 : 0;
    }
    return single;
}

} // namespace

// ---------------------------------------------------------------- tokens

const Token &ExpressionParser::take()
{
    const Token &taken = tokens_[at_];
    at_ += at_ + 1 < tokens_.size() ? 1 : 0; // the last one stays
    return taken;
}

bool ExpressionParser::isKeyword(Keyword keyword) const
{
    return token().kind == TokenKind::Keyword && token().keyword == keyword;
}

bool ExpressionParser::isSymbol(std::string_view symbol) const
{
    return token().kind == TokenKind::Symbol && token().text == symbol;
}

bool ExpressionParser::takeSymbol(std::string_view symbol)
{
    const bool isThere = isSymbol(symbol);
    if (isThere)
        take();
    return isThere;
}

bool ExpressionParser::fail(const std::string &what)
{
    if (token().kind != TokenKind::Bad)
        problems_->add(token().place, what);
    return false;
}

bool ExpressionParser::expected(const std::string &what)
{
    if (isSymbol("="))
        return fail("\"=\" has no meaning: \"==\" compares, \":=\" assigns");
    return fail(what + " is expected here, not " + shown(token()));
}

bool ExpressionParser::expectSymbol(std::string_view symbol)
{
    return takeSymbol(symbol) || expected(quoted(symbol));
}

bool ExpressionParser::expectName(const char *what, std::string *name)
{
    if (token().kind != TokenKind::Name)
        return expected(what);
    *name = take().text;
    return true;
}

// ---------------------------------------------------------------- expressions

/// Sets the depth from the parts; false when it is too large.
bool ExpressionParser::measured(Expression *expression)
{
    for (const Expression &part : expression->parts)
        expression->depth = std::max(expression->depth, part.depth + 1);
    if (expression->depth <= kMaxDepth)
        return true;
    problems_->add(expression->place,
                   "the expression is nested deeper than " + std::to_string(kMaxDepth) + " levels");
    return false;
}

/// A chain of operands with operators of that level between them; one comparison at most.
bool ExpressionParser::binary(int level, Expression *expression)
{
    if (!operand(level, expression))
        return false;
    Operator op{};
    for (int count = 1; operatorOf(token(), level, &op); ++count) {
        if (level == kComparison && count > 1)
            return fail("a comparison cannot be compared again; join comparisons with AND");
        Expression whole;
        whole.form = Expression::Form::Binary;
        whole.op = op;
        whole.place = take().place;
        whole.parts.resize(2);
        if (!operand(level, &whole.parts[1]))
            return false;
        whole.parts[0] = std::move(*expression);
        *expression = std::move(whole);
        if (!measured(expression))
            return false;
    }
    return true;
}

bool ExpressionParser::operand(int level, Expression *expression)
{
    if (level == kProduct)
        return primary(expression);
    if (level != kAnd || !isKeyword(Keyword::Not))
        return binary(level + 1, expression);
    expression->form = Expression::Form::Not;
    expression->place = take().place;
    expression->parts.resize(1);
    return binary(kComparison, &expression->parts[0]) && measured(expression);
}

bool ExpressionParser::primary(Expression *expression)
{
    if (nesting_ >= kMaxDepth)
        return fail("the expression is nested deeper than " + std::to_string(kMaxDepth) + " levels");
    ++nesting_;
    bool isRead = false;
    expression->place = token().place;
    if (isSymbol("-"))
        isRead = minus(expression);
    else if (takeSymbol("("))
        isRead = binary(0, expression) && expectSymbol(")");
    else if (token().kind == TokenKind::Name)
        isRead = nameOrCall(expression);
    else
        isRead = literal(expression);
    --nesting_;
    return isRead;
}

bool ExpressionParser::minus(Expression *expression)
{
    expression->form = Expression::Form::Minus;
    take();
    expression->parts.resize(1);
    return primary(&expression->parts[0]) && measured(expression);
}

bool ExpressionParser::literal(Expression *expression)
{
    const Token &token = this->token();
    const char *end = token.text.data() + token.text.size();
    if (token.kind == TokenKind::Int) {
        std::int64_t number = 0;
        if (std::from_chars(token.text.data(), end, number).ec != std::errc())
            return fail("the number " + quoted(token.text) + " is too large for an int");
        expression->value = number;
    } else if (token.kind == TokenKind::Double) {
        double number = 0;
        if (std::from_chars(token.text.data(), end, number).ec != std::errc())
            return fail("the number " + quoted(token.text) + " is too large or too small for a double");
        expression->value = number;
    } else if (token.kind == TokenKind::Text) {
        expression->value = withoutDoubled(token.text);
    } else if (isKeyword(Keyword::True) || isKeyword(Keyword::False)) {
        expression->value = isKeyword(Keyword::True);
    } else {
        return expected("an expression");
    }
    take();
    return true;
}

bool ExpressionParser::nameOrCall(Expression *expression)
{
    expression->form = Expression::Form::Name;
    expression->name = take().text;
    if (takeSymbol("(")) {
        expression->form = Expression::Form::Call;
        if (!arguments(expression))
            return false;
    }
    while (takeSymbol("."))
        if (!member(expression))
            return false;
    return true;
}

bool ExpressionParser::arguments(Expression *call)
{
    if (takeSymbol(")"))
        return true;
    do {
        if (call->parts.size() == kMaxParameters)
            return fail("more than " + std::to_string(kMaxParameters) + " arguments");
        call->parts.emplace_back();
        if (!binary(0, &call->parts.back()))
            return false;
    } while (takeSymbol(","));
    return (takeSymbol(")") || expected("\",\" or \")\"")) && measured(call);
}

bool ExpressionParser::member(Expression *expression)
{
    Expression whole;
    whole.form = Expression::Form::Member;
    whole.place = token().place;
    if (!expectName("a member", &whole.name))
        return false;
    whole.parts.push_back(std::move(*expression));
    *expression = std::move(whole);
    return measured(expression);
}

} // namespace controller::script
