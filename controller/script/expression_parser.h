#pragma once

#include "controller/script/lexer.h"
#include "controller/script/syntax.h"

namespace controller::script {

/// Reads expressions off a list of tokens. The statements of a file are read on top of it.
class ExpressionParser
{
protected:
    ExpressionParser(std::vector<Token> tokens, Problems *problems)
        : tokens_(std::move(tokens)), problems_(problems)
    {
    }

    const Token &token() const { return tokens_[at_]; }
    const Token &take();
    bool isKeyword(Keyword keyword) const;
    bool isSymbol(std::string_view symbol) const;
    bool takeSymbol(std::string_view symbol);
    /// Reports at the present token, unless the lexer did. Always false.
    bool fail(const std::string &what);
    /// "... is expected here, not ...". Always false.
    bool expected(const std::string &what);
    bool expectSymbol(std::string_view symbol);
    bool expectName(const char *what, std::string *name);

    /// What these read goes to `expression`; false with a problem reported when it is none.
    bool expression(Expression *expression) { return binary(0, expression); }
    bool primary(Expression *expression);

private:
    bool binary(int level, Expression *expression);
    bool operand(int level, Expression *expression);
    bool minus(Expression *expression);
    bool literal(Expression *expression);
    bool nameOrCall(Expression *expression);
    bool arguments(Expression *call);
    bool member(Expression *expression);
    bool measured(Expression *expression);

    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    int nesting_ = 0;

protected:
    Problems *problems_;
};

} // namespace controller::script
