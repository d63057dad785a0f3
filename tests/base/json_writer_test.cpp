// Texts of JSON, member by member.
#include "base/json_writer.h"

#include <gtest/gtest.h>

#include <limits>

namespace orby::test {
namespace {

TEST(AJsonWriter, WritesTheShortestTextOfANumber) {
  JsonWriter json;
  json.OpenArray(true);
  for (const double number : {0.1, 1e21, -2.5, 1.0 / 3, 63.2, 5e-324}) json.Number(number);
  json.Number(std::numeric_limits<double>::infinity());
  json.Close();

  EXPECT_EQ(json.Take(), "[0.1, 1e+21, -2.5, 0.3333333333333333, 63.2, 5e-324, null]\n");
}

TEST(AJsonWriter, IndentsWhatIsNotInOneLine) {
  JsonWriter json;
  json.OpenObject();
  json.Text("a", "\"\\\n\x1F\xC3\xA4");
  json.Name("b");
  json.OpenArray();
  json.Close();
  json.Name("c");
  json.OpenObject(true);
  json.Flag("d", true);
  json.Name("e");
  json.OpenArray();
  json.Number(1);
  json.Number(2);
  json.Close();
  json.Close();
  json.Close();

  EXPECT_EQ(json.Take(),
            "{\n  \"a\": \"\\\"\\\\\\n\\u001fä\",\n  \"b\": [],\n  \"c\": {\"d\": true, \"e\": [1, 2]}\n}\n");
}

TEST(AJsonWriter, PutsMadeValuesInTheirPlaces) {
  JsonWriter json;
  json.OpenObject();
  json.Name("rows");
  json.OpenArray();
  json.Made("{\"a\": 1}");
  json.Made("[]");
  json.Close();
  json.Close();

  EXPECT_EQ(json.Take(), "{\n  \"rows\": [\n    {\"a\": 1},\n    []\n  ]\n}\n");
}

}  // namespace
}  // namespace orby::test
