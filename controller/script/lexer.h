#pragma once

#include "controller/script/problems.h"

#include <string_view>

namespace controller::script {

enum class TokenKind { Name, Keyword, Int, Double, Text, Symbol, LineEnd, End, Bad };

enum class Keyword {
    Global,
    Proc,
    EndProc,
    Var,
    If,
    ElseIf,
    Else,
    EndIf,
    While,
    EndWhile,
    For,
    From,
    To,
    EndFor,
    Return,
    Pause,
    And,
    Or,
    Not,
    True,
    False,
};

/// The smallest part of a program file.
struct Token
{
    TokenKind kind = TokenKind::End;
    Keyword keyword = Keyword::Global; ///< of Keyword
    std::string_view text;             ///< as it stands in the file, of Text without the quotes around it
    Place place;
};

/// Cuts a file into tokens, the last of them End. What is no token is reported and becomes Bad. `text` must outlive the
/// result.
std::vector<Token> tokenize(std::string_view text, Problems *problems);

} // namespace controller::script
