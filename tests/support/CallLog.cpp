// How calls are packed into a log, and how they are printed.
#include "tests/support/CallLog.h"

#include <charconv>
#include <cstring>

namespace zeb {
namespace {

template <typename Number>
std::string printed(Number value) {
  char digits[32];
  return std::string(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

void appendEscaped(std::string& out, char character) {
  constexpr char kHexDigits[] = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(character);
  switch (character) {
    case '\t':
      out += "\\t";
      return;
    case '\r':
      out += "\\r";
      return;
    case '\n':
      out += "\\n";
      return;
    case '"':
      out += "\\\"";
      return;
    case '\\':
      out += "\\\\";
      return;
    default:
      break;
  }
  if (code >= 0x20 && code != 0x7f) {
    out += character;
  } else {
    out += {'\\', 'x', kHexDigits[code >> 4], kHexDigits[code & 0xf]};
  }
}

std::string quoted(const char* text) {
  std::string out = "\"";
  for (; *text != '\0'; ++text) appendEscaped(out, *text);
  return out + '"';
}

}  // namespace

void CallLog::addCall(CallKind kind, const void* value, std::size_t size) {
  bytes_ += static_cast<char>(kind);
  if (size > 0) bytes_.append(static_cast<const char*>(value), size);
  ++count_;
}

void CallLog::addText(const char (&buffer)[kCallTextSize]) {
  std::size_t length = kCallTextSize;
  while (length > 0 && buffer[length - 1] == '\0') --length;
  char packed[1 + kCallTextSize];
  packed[0] = static_cast<char>(static_cast<unsigned char>(length));
  std::memcpy(packed + 1, buffer, length);
  addCall(CallKind::kBroadc, packed, 1 + length);
}

std::vector<std::string> CallLog::calls() const {
  std::vector<std::string> all;
  all.reserve(count_);
  for (CallReader reader(*this); !reader.atEnd(); reader.next()) all.push_back(reader.describe());
  return all;
}

std::string CallLog::text() const {
  std::string all;
  for (CallReader reader(*this); !reader.atEnd(); reader.next()) all += reader.describe() + '\n';
  return all;
}

int CallReader::intValue() const {
  int number = 0;
  std::memcpy(&number, value(), sizeof number);
  return number;
}

double CallReader::doubleValue() const {
  double number = 0;
  std::memcpy(&number, value(), sizeof number);
  return number;
}

void CallReader::copyText(char (&buffer)[kCallTextSize]) const {
  const std::size_t length = textLength();
  std::memcpy(buffer, value() + 1, length);
  std::memset(buffer + length, 0, kCallTextSize - length);
}

std::string CallReader::describe() const {
  std::string call = callName(kind());
  switch (kind()) {
    case CallKind::kBarrier:
      break;
    case CallKind::kBroadi:
      call += ' ' + printed(intValue());
      break;
    case CallKind::kBroadd:
      call += ' ' + printed(doubleValue());
      break;
    case CallKind::kBroadc:
      call += ' ' + quoted(std::string(value() + 1, textLength()).c_str());
      break;
  }
  return call;
}

void CallReader::next() {
  switch (kind()) {
    case CallKind::kBarrier:
      break;
    case CallKind::kBroadi:
      offset_ += sizeof(int);
      break;
    case CallKind::kBroadd:
      offset_ += sizeof(double);
      break;
    case CallKind::kBroadc:
      offset_ += 1 + textLength();
      break;
  }
  ++offset_;
  ++index_;
}

}  // namespace zeb
