#include "shells/console/text.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "core/property_list_text.h"

namespace tb::console {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t escape = 0x1B;
constexpr char32_t joiner = 0x200D;
constexpr char32_t emojiSelector = 0xFE0F;

struct CodePoint {
  char32_t value;
  std::size_t length;  // in bytes
};

CodePoint codePointAt(std::string_view text, std::size_t at) {
  std::string_view rest = text.substr(at);
  const char32_t value = plist::readCharacter(rest);
  return {value, text.size() - at - rest.size()};
}

struct Range {
  char32_t first;
  char32_t last;
};

// Zero-width marks of scripts in current use. A missing one only counts as one column.
constexpr Range unseen[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489},  {0x0591, 0x05BD}, {0x05BF, 0x05BF}, {0x05C1, 0x05C2},
    {0x05C4, 0x05C5}, {0x05C7, 0x05C7},  {0x0610, 0x061A}, {0x064B, 0x065F}, {0x0670, 0x0670},
    {0x06D6, 0x06DC}, {0x06DF, 0x06E4},  {0x06E7, 0x06E8}, {0x06EA, 0x06ED}, {0x0900, 0x0902},
    {0x093A, 0x093A}, {0x093C, 0x093C},  {0x0941, 0x0948}, {0x094D, 0x094D}, {0x0951, 0x0957},
    {0x0962, 0x0963}, {0x0981, 0x0981},  {0x09BC, 0x09BC}, {0x09C1, 0x09C4}, {0x09CD, 0x09CD},
    {0x0A01, 0x0A02}, {0x0A3C, 0x0A51},  {0x0A81, 0x0A82}, {0x0ABC, 0x0ABC}, {0x0AC1, 0x0AC8},
    {0x0ACD, 0x0ACD}, {0x0BC0, 0x0BC0},  {0x0BCD, 0x0BCD}, {0x0C3E, 0x0C40}, {0x0C46, 0x0C56},
    {0x0CBC, 0x0CBC}, {0x0CCC, 0x0CCD},  {0x0D41, 0x0D44}, {0x0D4D, 0x0D4D}, {0x0E31, 0x0E31},
    {0x0E34, 0x0E3A}, {0x0E47, 0x0E4E},  {0x0EB1, 0x0EB1}, {0x0EB4, 0x0EBC}, {0x0EC8, 0x0ECE},
    {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},  {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x206F},
    {0x20D0, 0x20F0}, {0x302A, 0x302D},  {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F},
    {0xFEFF, 0xFEFF}, {0xE0000, 0xE0FFF}};

// Wide East Asian characters and emoji that terminals draw two columns wide.
constexpr Range wide[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},   {0x23F0, 0x23F0},
    {0x23F3, 0x23F3},   {0x25FD, 0x25FE},   {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},
    {0x2693, 0x2693},   {0x26A1, 0x26A1},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},
    {0x26CE, 0x26CE},   {0x26D4, 0x26D4},   {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},
    {0x26FA, 0x26FA},   {0x26FD, 0x26FD},   {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},
    {0x274C, 0x274C},   {0x274E, 0x274E},   {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},
    {0x27B0, 0x27B0},   {0x27BF, 0x27BF},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},
    {0x2E80, 0x303E},   {0x3041, 0x4DBF},   {0x4E00, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},   {0xFE10, 0xFE19},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},
    {0x17000, 0x18CFF}, {0x1B000, 0x1B2FF}, {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E},
    {0x1F191, 0x1F19A}, {0x1F200, 0x1F320}, {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393},
    {0x1F3A0, 0x1F3CA}, {0x1F3CF, 0x1F3D3}, {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4}, {0x1F3F8, 0x1F43E},
    {0x1F440, 0x1F440}, {0x1F442, 0x1F4FC}, {0x1F4FF, 0x1F53D}, {0x1F54B, 0x1F54E}, {0x1F550, 0x1F567},
    {0x1F57A, 0x1F57A}, {0x1F595, 0x1F596}, {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5},
    {0x1F6CC, 0x1F6CC}, {0x1F6D0, 0x1F6D2}, {0x1F6D5, 0x1F6D7}, {0x1F6DC, 0x1F6DF}, {0x1F6EB, 0x1F6EC},
    {0x1F6F4, 0x1F6FC}, {0x1F7E0, 0x1F7EB}, {0x1F7F0, 0x1F7F0}, {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945},
    {0x1F947, 0x1F9FF}, {0x1FA70, 0x1FAFF}, {0x20000, 0x2FFFD}, {0x30000, 0x3FFFD}};

static_assert(std::ranges::is_sorted(unseen, {}, &Range::first));
static_assert(std::ranges::is_sorted(wide, {}, &Range::first));

bool isIn(std::span<const Range> ranges, char32_t value) {
  const auto range = std::ranges::lower_bound(ranges, value, {}, &Range::last);
  return range != ranges.end() && range->first <= value;
}

bool isControl(char32_t value) { return value < 0x20 || (value >= 0x7F && value < 0xA0); }

bool turnsDirection(char32_t value) {
  return (value >= 0x202A && value <= 0x202E) || (value >= 0x2066 && value <= 0x2069);
}

int columnsOfCharacter(char32_t value) {
  if (isControl(value) || isIn(unseen, value)) return 0;
  return isIn(wide, value) ? 2 : 1;
}

// The length in bytes of the character at `at`: a code point, its combining marks, and joined code points.
std::size_t characterLength(std::string_view text, std::size_t at) {
  CodePoint last = codePointAt(text, at);
  std::size_t end = at + last.length;
  while (end < text.size()) {
    const CodePoint next = codePointAt(text, end);
    if (!isIn(unseen, next.value) && last.value != joiner) break;
    last = next;
    end += next.length;
  }
  return end - at;
}

// The end of the escape sequence at `at`: "ESC [", parameters and a final letter, or just ESC.
std::size_t afterEscape(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  if (end >= text.size() || text[end] != '[') return end;
  end += 1;
  while (end < text.size() && text[end] >= 0x20 && text[end] < 0x40) end += 1;
  return end < text.size() && text[end] >= 0x40 ? end + 1 : end;
}

// The longest prefix of `text` that fits `width` columns, but at least one character.
std::string_view startWithin(std::string_view text, int width) {
  std::size_t end = 0;
  int columns = 0;
  while (end < text.size()) {
    const std::size_t length = characterLength(text, end);
    columns += columnsOf(text.substr(end, length));
    if (columns > width && end > 0) break;
    end += length;
  }
  return text.substr(0, end);
}

std::string_view afterBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

void wrapParagraph(std::string_view text, int width, std::vector<std::string>& lines) {
  std::string line;
  int columns = 0;
  for (text = afterBlanks(text); !text.empty(); text = afterBlanks(text)) {
    std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    if (!line.empty() && columns + 1 + columnsOf(word) > width) {
      lines.push_back(std::move(line));
      line.clear();
    }
    for (std::string_view start = startWithin(word, width); start.size() < word.size();
         start = startWithin(word, width)) {
      lines.emplace_back(start);
      word.remove_prefix(start.size());
    }
    if (!line.empty()) line += ' ';
    line += word;
    columns = columnsOf(line);
  }
  lines.push_back(std::move(line));
}

}  // namespace

int columnsOf(std::string_view text) {
  int columns = 0;
  int last = 0;
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint point = codePointAt(text, at);
    // Terminals draw a narrow character with an emoji selector one or two columns wide. Counting two ensures
    // that the line fits.
    const bool widened = point.value == emojiSelector && last == 1;
    const int own = widened ? 1 : columnsOfCharacter(point.value);
    columns += own;
    if (own > 0) last = own;
    at += point.length;
  }
  return columns;
}

std::string cleaned(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint point = codePointAt(text, at);
    if (point.value == escape) {
      at = afterEscape(text, at);
      continue;
    }
    if (point.value == '\t') {
      clean += ' ';
    } else if (point.value == replacement) {
      clean += "\uFFFD";
    } else if (point.value == '\n' || (!isControl(point.value) && !turnsDirection(point.value))) {
      clean += text.substr(at, point.length);
    }
    at += point.length;
  }
  return clean;
}

std::vector<std::string> wrapped(std::string_view text, int width) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    wrapParagraph(text.substr(at, end - at), width, lines);
    at = end + 1;
  }
  return lines;
}

std::string firstCharacters(std::string_view text, int count) {
  std::size_t end = 0;
  for (int taken = 0; taken < count && end < text.size(); ++taken) end += characterLength(text, end);
  return std::string(text.substr(0, end));
}

std::string fitted(std::string_view text, int width) {
  if (columnsOf(text) <= width) return std::string(text);
  return std::string(startWithin(text, width - 3)) + "...";
}

}  // namespace tb::console
