// The committed help file: it is complete, it matches its pages, and it has a topic for everything.
#include <QDirIterator>
#include <map>
#include <set>

#include "gui/forms.h"
#include "gui/gui_bench.h"
#include "gui/help_bench.h"
#include "help/markup.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

// The anchors, links and pictures of a page.
struct PageParts {
  std::set<std::string> anchors;
  std::vector<std::string> links;
  std::vector<std::string> pictures;
  std::string title;
};

PageParts PartsOf(std::string_view source) {
  PageParts parts;
  std::string before;
  while (!source.empty()) {
    const MarkupPiece piece = TakeMarkup(source);
    if (piece.tag == "/TITLE") parts.title = DecodedText(piece.text);
    if (piece.tag == "IMG") parts.pictures.push_back(AttributeOf(piece, "src"));
    if (piece.tag != "A") continue;
    if (const std::string name = AttributeOf(piece, "name"); !name.empty()) parts.anchors.insert(name);
    if (const std::string link = AttributeOf(piece, "href"); !link.empty()) parts.links.push_back(link);
  }
  return parts;
}

// Returns the files in a folder of the help, by their names in the help file.
std::vector<std::string> FilesUnder(const std::string& folder) {
  std::vector<std::string> names;
  QDirIterator files(ToQt(folder), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) names.push_back(FromQt(files.next().mid(static_cast<qsizetype>(folder.size()) + 1)));
  return names;
}

class HelpFile : public testing::Test, protected CommittedBook {
 protected:
  HelpFile() {
    for (const HelpEntry& entry : AllEntries(book.Contents())) {
      if (!entry.place.empty()) parts[entry.place] = PartsOf(file->Read(entry.place).value_or(""));
    }
  }

  std::map<std::string, PageParts> parts;
};

TEST_F(HelpFile, ContainsExactlyThePagesAndPictures) {
  const std::string pages = HelpFolder + "/pages";
  std::vector<std::string> wanted = FilesUnder(pages);

  for (const std::string& name : wanted) {
    EXPECT_EQ(file->Read(name), FileBytes(pages + "/" + name).toStdString()) << name;
  }
  for (const char* own : {"ORBY.hhc", "ORBY.hhk", "topics.txt"}) wanted.emplace_back(own);
  EXPECT_THAT(file->Names(), UnorderedElementsAreArray(wanted));
}

TEST_F(HelpFile, HasTheOutlineForItsContents) {
  std::vector<std::string> wanted;
  for (const QByteArray& line : FileBytes(HelpFolder + "/contents.txt").split('\n')) {
    const std::string text = line.trimmed().toStdString();
    if (!text.empty()) wanted.push_back(text.ends_with(".html") ? text : text + " (heading)");
  }

  std::vector<std::string> found;
  for (const HelpEntry& entry : AllEntries(book.Contents())) {
    found.push_back(entry.place.empty() ? entry.title + " (heading)" : entry.place);
    if (!entry.place.empty()) {
      EXPECT_EQ(parts[entry.place].title, entry.title);
    }
  }

  EXPECT_EQ(found, wanted);
  EXPECT_GE(parts.size(), 42U);
}

TEST_F(HelpFile, HasNoBrokenLink) {
  for (const auto& [name, page] : parts) {
    for (const std::string& link : page.links) {
      const std::string target(link.starts_with('#') ? name : std::string(PageOf(link)));
      ASSERT_TRUE(parts.contains(target)) << name << ": " << link;
      if (const auto at = link.find('#'); at != std::string::npos) {
        EXPECT_THAT(parts[target].anchors, Contains(link.substr(at + 1))) << name;
      }
    }
  }
}

TEST_F(HelpFile, ContainsEveryPictureOfItsPages) {
  for (const auto& [name, page] : parts) {
    for (const std::string& picture : page.pictures) {
      const auto bytes = file->Read(picture);
      ASSERT_TRUE(bytes) << name << ": " << picture;
      EXPECT_FALSE(QImage::fromData(QByteArray::fromStdString(*bytes)).isNull()) << picture;
    }
  }
}

TEST_F(HelpFile, HasAPlaceForEachKeywordOfItsIndex) {
  EXPECT_GE(book.Index().size(), 100U);
  for (const HelpKeyword& keyword : book.Index()) {
    for (const std::string& place : keyword.places) {
      const std::string page(PageOf(place));
      ASSERT_TRUE(parts.contains(page)) << keyword.keyword << ": " << place;
      if (place != page) {
        EXPECT_THAT(parts[page].anchors, Contains(place.substr(page.size() + 1)));
      }
    }
  }
}

TEST_F(HelpFile, HasItsIndexInAlphabeticalOrder) {
  QStringList keywords;
  for (const HelpKeyword& keyword : book.Index()) keywords.append(ToQt(keyword.keyword).toCaseFolded());

  EXPECT_TRUE(std::is_sorted(keywords.begin(), keywords.end()));
}

// ---- topics --------------------------------------------------------------------------------------------------------

class TopicsOf : public GuiTest, public testing::WithParamInterface<FormMaker>, protected CommittedBook {
 protected:
  bool IsItsOwn(const std::string& place, const std::string& topic) {
    const std::string end = "#" + topic;
    return place.ends_with(end) && PartsOf(file->Read(std::string(PageOf(place))).value_or("")).anchors.contains(topic);
  }
};

TEST_P(TopicsOf, TheForm) {
  const std::string topic(GetParam().name);

  EXPECT_TRUE(IsItsOwn(book.PlaceOf(topic), topic)) << topic;
}

// F1 in a field must not open the top of a page.
TEST_P(TopicsOf, EveryControlThatTheKeyboardReaches) {
  program.session.settings.ShowDisclaim = 0;
  const auto form = GetParam().make(program);
  form->Open();
  const auto window = MakeWindow(*form, nullptr);
  const BoundForm view(*form, *window);

  std::vector<std::string> missing;
  for (const Control* control : form->Controls()) {
    const QWidget* widget = view.WidgetOf(*control);
    if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
    const std::string topic = std::string(form->Name()) + "." + std::string(control->Name());
    const std::string place = book.PlaceOf(topic);
    const std::string array = topic.substr(0, topic.find_last_of('_'));
    if (!IsItsOwn(place, topic) && !IsItsOwn(place, array)) missing.push_back(topic);
  }

  EXPECT_THAT(missing, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Of, TopicsOf, testing::ValuesIn(FormMakers),
                         [](const auto& maker) { return std::string(maker.param.name); });

}  // namespace
}  // namespace orby::test
