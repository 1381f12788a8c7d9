// The numbers and records that the equation parser is made of: token kinds, opcodes, error codes,
// one record per variable and one per evaluation step.
//
// The numbers are fixed. A function keyword travels through the token as one byte that holds its
// opcode, and the host knows the error codes.
#pragma once

#include <string>

enum TokenKind {
    TOKEN_DELIMITER = 1,  // one of + * - / % ^ = ( )
    TOKEN_NAME = 2,
    TOKEN_NUMBER = 3,
    TOKEN_FUNCTION = 4,  // the token text is one byte, the opcode
    TOKEN_END = 6,
    TOKEN_UNKNOWN = 7,
};

enum ParserOpcode {
    OPCODE_VARIABLE = 2,
    OPCODE_NUMBER = 3,
    OPCODE_ASSIGN = 8,
    OPCODE_NEGATE = 9,
    OPCODE_PARENTHESES = 10,
    OPCODE_MULTIPLY = 11,
    OPCODE_DIVIDE = 12,
    OPCODE_REMAINDER = 13,  // evaluated, but no rule of the grammar emits it
    OPCODE_POWER = 14,
    OPCODE_ADD = 15,
    OPCODE_SUBTRACT = 16,
    OPCODE_RECT = 17,
    OPCODE_ARCOS = 18,
    OPCODE_ARSIN = 19,
    OPCODE_ARTAN = 20,
    OPCODE_COS = 21,
    OPCODE_EXP = 22,
    OPCODE_LN = 23,
    OPCODE_LOG = 24,
    OPCODE_SIN = 25,
    OPCODE_SQRT = 26,
    OPCODE_TAN = 27,
    OPCODE_RAMP = 28,
    OPCODE_INTG = 29,
    OPCODE_DIFF = 30,
    OPCODE_INV = 31,
    OPCODE_NORM = 32,
    OPCODE_NORMAX = 33,
    OPCODE_NORMIN = 34,
    OPCODE_FACT = 35,
};

enum ParserError {
    PARSER_OK = 0,
    PARSER_EMPTY_TEXT = 1,
    PARSER_EXPONENT_TOO_LONG = 2,
    PARSER_PARENTHESES = 3,
    PARSER_FUNCTION_NEEDS_PARENTHESES = 4,
    PARSER_MISSING_OPERATOR = 5,
    PARSER_ILLEGAL_ASSIGNMENT = 6,
    PARSER_VARIABLE_COUNT = 7,
    PARSER_NO_DEPENDENT = 8,
    PARSER_NO_EQUALS_SIGN = 9,
    PARSER_VARIABLE_INDEX = 10,
    PARSER_DEPENDENT_INDEX = 11,
    PARSER_INDEPENDENT_INDEX = 12,
    PARSER_PARAMETER_INDEX = 13,
    PARSER_EQUATION_INDEX = 14,
    PARSER_UNKNOWN_NAME = 16,
    PARSER_MISSING_OPERAND = 17,
    PARSER_DEPENDENT_UNDEFINED = 18,
    PARSER_INVALID_NUMBER = 19,
    PARSER_TEXT_TOO_LONG = 22,
    PARSER_SYNTAX = 24,
    PARSER_MATH = 25,
    PARSER_UNKNOWN = 26,
};

// A text of this many characters or more is too long for the parser and the scanner.
constexpr int PARSER_TEXT_LIMIT = 256;

// One named variable. The table holds the independent variables first, then the parameters, then
// the dependent variables.
struct ParserVariable {
    double dValue = 0.0;
    int nStep = 0;      // its assignment in the steps; 0: no equation defines it
    int bComputed = 0;  // it has stood on a left side; during evaluation: its value is known
    std::string strName;
};

// One node of the expression tree. Children stand before their parents.
struct ParserStep {
    double dValue = 0.0;  // the literal of a number, else the value last computed
    int nOperand1 = 0;
    int nOperand2 = 0;
    int eOpcode = 0;
    int nVariable = 0;
    int bReset = 0;       // set by ResetHistory; nothing reads it
    double dState = 0.0;  // the history of the INTG or DIFF whose argument this step is
    double dState2 = 0.0;
    double dState3 = 0.0;
};

// Arrays of the independent variables, for an evaluation of many points in one call.
struct ParserBlock {
    int nPoints = 0;
    // One array of nPoints values for each declared independent variable. A null array leaves that
    // variable at the value it has.
    const double* const* ppIndependent = nullptr;
    // The current and the next time of each point; null leaves the time as it was set.
    const double* pTime = nullptr;
    const double* pNextTime = nullptr;
};
