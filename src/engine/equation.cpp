#include "engine/equation.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tessarine {
namespace {

using Value = std::int64_t;

bool isOperator(char c) {
  return c == '+' || c == '-' || c == 'X' || c == '/';
}

// A decimal integer with an optional sign; nullopt when the text is not one or does not fit.
std::optional<Value> parseDecimal(std::string_view text) {
  bool negative = false;
  if (!text.empty() && (text[0] == '+' || text[0] == '-')) {
    negative = text[0] == '-';
    text.remove_prefix(1);
  }
  if (text.empty()) return std::nullopt;
  Value value = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    const Value digit = c - '0';
    // Accumulate negatively so that the most negative value still fits.
    if (__builtin_mul_overflow(value, Value{10}, &value)) return std::nullopt;
    if (__builtin_sub_overflow(value, digit, &value)) return std::nullopt;
  }
  if (negative) return value;
  if (__builtin_mul_overflow(value, Value{-1}, &value)) return std::nullopt;
  return value;
}

// An operand's number: a leading "-" negates the rest; anything that is not a number counts as 0.
// Only a negation that does not fit fails, and that makes the whole guess invalid.
std::optional<Value> operandValue(std::string_view text) {
  if (!text.empty() && text[0] == '-') {
    const Value rest = parseDecimal(text.substr(1)).value_or(0);
    Value negated = 0;
    if (__builtin_sub_overflow(Value{0}, rest, &negated)) return std::nullopt;
    return negated;
  }
  return parseDecimal(text).value_or(0);
}

// One step of arithmetic; nullopt for an overflow, a zero divisor or a division with a remainder.
std::optional<Value> apply(Value a, char op, Value b) {
  Value result = 0;
  switch (op) {
    case '+':
      if (__builtin_add_overflow(a, b, &result)) return std::nullopt;
      return result;
    case '-':
      if (__builtin_sub_overflow(a, b, &result)) return std::nullopt;
      return result;
    case 'X':
      if (__builtin_mul_overflow(a, b, &result)) return std::nullopt;
      return result;
    case '/':
      if (b == 0 || (b == -1 && a == INT64_MIN) || a % b != 0) return std::nullopt;
      return a / b;
  }
  return std::nullopt;
}

std::optional<Value> apply(std::optional<Value> a, char op, std::optional<Value> b) {
  if (!a || !b) return std::nullopt;
  return apply(*a, op, *b);
}

bool isMultiplicative(char op) {
  return op == 'X' || op == '/';
}

// The left side of "a op1 b op2 c". Times and divide bind first; "/" then "X" multiplies before it
// divides, so only the final product has to be a multiple of b.
std::optional<Value> leftSide(Value a, char op1, Value b, char op2, Value c) {
  if (op2 == 0) return apply(a, op1, b);
  if (op1 == '/' && op2 == 'X') return apply(apply(a, 'X', c), '/', b);
  if (isMultiplicative(op2) && !isMultiplicative(op1)) return apply(a, op1, apply(b, op2, c));
  return apply(apply(a, op1, b), op2, c);
}

bool matches(std::optional<Value> left, std::string_view result) {
  const auto right = operandValue(result);
  return left && right && *left == *right;
}

}  // namespace

bool isValidOneOperatorEquation(std::string_view equation) {
  if (equation.empty()) return false;
  std::string a(1, equation[0]), b, r;
  char op = 0;
  bool seenEquals = false;
  for (char c : equation.substr(1)) {
    if (c == '=') {
      seenEquals = true;
    } else if (seenEquals) {
      r += c;
    } else if (op != 0) {
      b += c;
    } else if (isOperator(c)) {
      op = c;
    } else {
      a += c;
    }
  }
  if (op == 0) return false;
  const auto left = operandValue(a), right = operandValue(b);
  if (!left || !right) return false;
  return matches(apply(*left, op, *right), r);
}

bool isValidTwoOperatorEquation(std::string_view equation) {
  if (equation.empty()) return false;
  std::string a(1, equation[0]), b, c, r;
  char op1 = 0, op2 = 0;
  bool seenEquals = false;
  for (char ch : equation.substr(1)) {
    if (ch == '=') {
      seenEquals = true;
    } else if (seenEquals) {
      r += ch;
    } else if (op2 != 0) {
      c += ch;
    } else if (op1 != 0 && (ch == '+' || ch == '-')) {
      if (b.empty()) {
        b += ch;  // the sign of b
      } else {
        op2 = ch;
      }
    } else if (op1 != 0 && (ch == 'X' || ch == '/')) {
      op2 = ch;
    } else if (op1 != 0) {
      b += ch;
    } else if (isOperator(ch)) {
      op1 = ch;
    } else {
      a += ch;
    }
  }
  if (op1 == 0) return false;
  const auto av = operandValue(a), bv = operandValue(b), cv = operandValue(c);
  if (!av || !bv || !cv) return false;
  return matches(leftSide(*av, op1, *bv, op2, *cv), r);
}

}  // namespace tessarine
