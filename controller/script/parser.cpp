#include "controller/script/parser.h"

#include "controller/script/expression_parser.h"
#include "controller/script/limits.h"

#include <algorithm>

namespace controller::script {

namespace {

/// A statement with an end of its own, while it is read.
struct Open
{
    const char *name;
    Keyword end;
    const char *endName;
    int line;
};

class Parser : private ExpressionParser
{
public:
    Parser(std::string_view text, int file, Problems *problems)
        : ExpressionParser(tokenize(text, problems), problems), file_(file)
    {
    }

    std::vector<Procedure> run()
    {
        while (token().kind != TokenKind::End) {
            if (token().kind == TokenKind::LineEnd)
                take();
            else if (isKeyword(Keyword::Global) || isKeyword(Keyword::Proc))
                procedure();
            else
                outside();
        }
        return std::move(procedures_);
    }

private:
    // -- procedures

    /// Tells once about lines between procedures.
    void outside()
    {
        fail("a procedure is expected here: [GLOBAL] PROC name(...)");
        while (token().kind != TokenKind::End && !isKeyword(Keyword::Global) && !isKeyword(Keyword::Proc))
            take();
    }

    void procedure()
    {
        Procedure procedure;
        procedure.file = file_;
        isBroken_ = false;
        procedure.isGlobal = isKeyword(Keyword::Global);
        if (procedure.isGlobal)
            take();
        if (!isKeyword(Keyword::Proc)) {
            expected("PROC");
            skipLine();
            return;
        }
        if (!header(&procedure))
            skipLine();
        open_.clear();
        open_.push_back({"PROC", Keyword::EndProc, "ENDPROC", procedure.place.line});
        procedure.body = block();
        procedure.end = token().place;
        close();
        procedure.isBroken = isBroken_;
        procedures_.push_back(std::move(procedure));
    }

    bool header(Procedure *procedure)
    {
        take();
        procedure->place = token().place;
        return expectName("the name of a procedure", &procedure->name) && expectSymbol("(") &&
               parameters(procedure) && lineEnd();
    }

    bool parameters(Procedure *procedure)
    {
        if (takeSymbol(")"))
            return true;
        do {
            Parameter parameter;
            if (procedure->parameters.size() == kMaxParameters)
                return fail("more than " + std::to_string(kMaxParameters) + " parameters");
            if (!type(&parameter.type))
                return false;
            parameter.place = token().place;
            if (!expectName("the name of a parameter", &parameter.name))
                return false;
            procedure->parameters.push_back(std::move(parameter));
        } while (takeSymbol(","));
        return takeSymbol(")") || expected("\",\" or \")\"");
    }

    bool type(Type *type)
    {
        if (token().kind != TokenKind::Name || !typeOfName(std::string(token().text), type))
            return expected("a type (bool, int, double, string, clock, robtarget)");
        take();
        return true;
    }

    // -- blocks

    bool lineEnd()
    {
        if (token().kind != TokenKind::LineEnd)
            return expected("the end of the line");
        take();
        return true;
    }

    void skipLine()
    {
        isBroken_ = true;
        while (token().kind != TokenKind::LineEnd && token().kind != TokenKind::End)
            take();
    }

    /// Leaves out the rest of the line, but no word that ends a block.
    void recover()
    {
        isBroken_ = true;
        if (!isEnd())
            skipLine();
    }

    bool isEnd() const
    {
        constexpr Keyword ends[] = {Keyword::ElseIf, Keyword::Else,    Keyword::EndIf, Keyword::EndWhile,
                                    Keyword::EndFor, Keyword::EndProc, Keyword::Proc,  Keyword::Global};
        return token().kind == TokenKind::Keyword &&
               std::find(std::begin(ends), std::end(ends), token().keyword) != std::end(ends);
    }

    /// Whether the word at hand ends or continues something that is open further out.
    bool endsSomethingOpen() const
    {
        if (isKeyword(Keyword::Proc) || isKeyword(Keyword::Global))
            return true;
        const bool isOfIf = isKeyword(Keyword::ElseIf) || isKeyword(Keyword::Else);
        return std::any_of(open_.begin(), open_.end(), [&](const Open &open) {
            return isKeyword(open.end) || (isOfIf && open.end == Keyword::EndIf);
        });
    }

    /// Statements up to a word that ends one that is open. A word that ends none is reported and left out.
    Block block()
    {
        Block block;
        while (token().kind != TokenKind::End) {
            if (token().kind == TokenKind::LineEnd) {
                take();
            } else if (!isEnd()) {
                block.emplace_back();
                if (!statement(&block.back()) || !lineEnd())
                    recover();
            } else if (endsSomethingOpen()) {
                break;
            } else {
                fail(std::string(token().text) + " ends nothing that is open here");
                skipLine();
            }
        }
        return block;
    }

    /// Takes the end of what was opened last; false when it is missing.
    bool close()
    {
        const Open open = open_.back();
        open_.pop_back();
        if (isKeyword(open.end)) {
            take();
            return true;
        }
        isBroken_ = true;
        if (isTooDeep_) // and the rest was not read
            return false;
        return fail(std::string(open.endName) + " is missing: the " + open.name + " in line " +
                    std::to_string(open.line) + " is open");
    }

    /// A part of a statement that goes on in the next lines, such as a condition: what is wrong in its line is reported,
    /// and the lines below are read all the same.
    void restOfLine(bool isRead)
    {
        if (!isRead || !lineEnd())
            skipLine();
    }

    // -- statements

    bool statement(Statement *statement)
    {
        statement->place = token().place;
        if (token().kind == TokenKind::Name)
            return assignmentOrCall(statement);
        if (token().kind != TokenKind::Keyword)
            return expected("a statement");
        switch (token().keyword) {
        case Keyword::Var:
            return variable(statement);
        case Keyword::If:
            return nested(statement, {"IF", Keyword::EndIf, "ENDIF", 0}, &Parser::branches);
        case Keyword::While:
            return nested(statement, {"WHILE", Keyword::EndWhile, "ENDWHILE", 0}, &Parser::whileLoop);
        case Keyword::For:
            return nested(statement, {"FOR", Keyword::EndFor, "ENDFOR", 0}, &Parser::forLoop);
        case Keyword::Return:
            return returns(statement);
        case Keyword::Pause:
            statement->form = Statement::Form::Pause;
            take();
            return true;
        default:
            return expected("a statement");
        }
    }

    bool nested(Statement *statement, Open open, void (Parser::*read)(Statement *))
    {
        if (open_.size() > static_cast<std::size_t>(kMaxNesting)) {
            fail("more than " + std::to_string(kMaxNesting) + " blocks inside each other");
            isTooDeep_ = true;
            while (token().kind != TokenKind::End)
                take();
            return false;
        }
        open.line = token().place.line;
        open_.push_back(open);
        take();
        (this->*read)(statement);
        return close();
    }

    bool variable(Statement *statement)
    {
        statement->form = Statement::Form::Var;
        take();
        if (!type(&statement->type))
            return false;
        statement->place = token().place;
        if (!expectName("the name of a variable", &statement->name))
            return false;
        statement->hasValue = takeSymbol(":=");
        return !statement->hasValue || expression(&statement->value);
    }

    bool assignmentOrCall(Statement *statement)
    {
        if (!primary(&statement->value))
            return false;
        statement->form = Statement::Form::Call;
        if (takeSymbol(":=")) {
            statement->form = Statement::Form::Assign;
            statement->target = std::move(statement->value);
            statement->value = Expression();
            return expression(&statement->value);
        }
        return statement->value.form == Expression::Form::Call || expected("\":=\" or \"(\"");
    }

    void branches(Statement *statement)
    {
        statement->form = Statement::Form::If;
        branch(statement);
        while (isKeyword(Keyword::ElseIf)) {
            take();
            branch(statement);
        }
        if (!isKeyword(Keyword::Else))
            return;
        take();
        restOfLine(true);
        statement->otherwise = block();
        while (isKeyword(Keyword::Else) || isKeyword(Keyword::ElseIf)) {
            fail(std::string(token().text) + " behind ELSE");
            skipLine();
            block();
        }
    }

    void branch(Statement *statement)
    {
        Branch &branch = statement->branches.emplace_back();
        branch.place = token().place;
        restOfLine(expression(&branch.condition));
        branch.block = block();
    }

    void whileLoop(Statement *statement)
    {
        statement->form = Statement::Form::While;
        branch(statement);
    }

    void forLoop(Statement *statement)
    {
        statement->form = Statement::Form::For;
        statement->place = token().place;
        restOfLine(expectName("the name of a counter", &statement->name) &&
                   expectWord(Keyword::From, "FROM") && expression(&statement->value) &&
                   expectWord(Keyword::To, "TO") && expression(&statement->last));
        statement->branches.emplace_back().block = block();
    }

    bool expectWord(Keyword keyword, const char *name)
    {
        if (!isKeyword(keyword))
            return expected(name);
        take();
        return true;
    }

    bool returns(Statement *statement)
    {
        statement->form = Statement::Form::Return;
        take();
        statement->hasValue = token().kind != TokenKind::LineEnd;
        return !statement->hasValue || expression(&statement->value);
    }

    int file_;
    std::vector<Procedure> procedures_;
    std::vector<Open> open_;
    bool isBroken_ = false;
    bool isTooDeep_ = false;
};

} // namespace

std::vector<Procedure> parse(std::string_view text, int file, Problems *problems)
{
    if (text.size() <= kMaxSource)
        return Parser(text, file, problems).run();
    problems->add({}, "the file has " + std::to_string(text.size()) + " bytes, " +
                          std::to_string(kMaxSource) + " are allowed");
    return {};
}

} // namespace controller::script
