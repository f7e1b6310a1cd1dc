#include "core/property_list_xml.h"

#include <gtest/gtest.h>

namespace tb::plist {
namespace {

std::expected<Value, ReadError> readText(const std::string& text) {
  return readXml(std::as_bytes(std::span(text)));
}

std::string file(const std::string& content) {
  return "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//A//B\" "
         "\"http://x\">\n"
         "<!-- a <save> -->\n<plist version=\"1.0\">\n" +
         content + "\n</plist>\n";
}

TEST(XmlPropertyList, ReadsEveryKindOfValue) {
  const auto read = readText(file(R"(<dict>
    <key>name</key><string>Ada &amp; &lt;Bo&gt; &#233;&#x1F3AC;<![CDATA[ <b>&amp;]]></string>
    <key>empty</key><string/>
    <key>week</key><integer> -12 </integer>
    <key>largest</key><integer>9223372036854775807</integer>
    <key>cash</key><real>1.5e3</real>
    <key>yes</key><true/> <key>no</key><false></false>
    <key>day</key><date>2001-01-02T00:00:01Z</date>
    <key>picture</key><data>
      AAEC
      /w==
    </data>
    <key>list</key><array><integer>1</integer><array/><dict/></array>
  </dict>)"));
  const Dictionary expected{
      {"name", Value{"Ada & <Bo> é🎬 <b>&amp;"}},
      {"empty", Value{""}},
      {"week", Value{std::int64_t{-12}}},
      {"largest", Value{INT64_MAX}},
      {"cash", Value{1500.0}},
      {"yes", Value{true}},
      {"no", Value{false}},
      {"day", Value{Date{86401}}},
      {"picture", Value{Data{{std::byte{0}, std::byte{1}, std::byte{2}, std::byte{255}}}}},
      {"list", Value{Array{Value{std::int64_t{1}}, Value{Array{}}, Value{Dictionary{}}}}}};
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, Value{expected});
}

TEST(XmlPropertyList, RejectsBadFiles) {
  for (const char* const content :
       {"", "<dict>", "<dict><key>a</key></dict>", "<dict><integer>1</integer></dict>",
        "<integer>1x</integer>", "<integer>9223372036854775808</integer>", "<real></real>",
        "<date>2001-13-01T00:00:00Z</date>", "<data>*</data>", "<string>&unknown;</string>",
        "<string>&#xD800;</string>", "<string>a</integer>", "<string><b/></string>", "<array></dict>",
        "<unknown/>", "<dict><key>a</key><true/><key>a</key><true/></dict>"}) {
    EXPECT_FALSE(readText(file(content))) << content;
  }
  std::string deep;
  for (int level = 0; level < 100; ++level) deep += "<array>";
  EXPECT_EQ(readText(file(deep)), std::unexpected(ReadError::tooDeep));
  const std::string whole = file("<dict><key>a</key><string>text</string></dict>");
  for (std::size_t size = 0; size < whole.find("</dict>"); ++size)
    EXPECT_FALSE(readText(whole.substr(0, size)));
}

}  // namespace
}  // namespace tb::plist
