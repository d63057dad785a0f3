#include "posix/xdg_file_types.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::SizeIs;
using testing::UnorderedElementsAre;

const std::string Packages = "/home/user/.local/share/mime/packages/";
const std::string Entry = "/home/user/.local/share/applications/orby.desktop";

struct XdgFileAssociation : testing::Test {
  XdgFileAssociation() { platform.files.files["/program/orby.svg"] = "<svg/>"; }

  void Associate(const std::string& extension = "ORB") { Associate(extension, platform.files); }
  void Associate(const std::string& extension, FileSystem& files) {
    XdgFileTypes(files, platform.userFolders, platform.documents).Associate(extension, "Orby Roof Support Workbench");
  }

  std::string& File(const std::string& path) { return platform.files.files[path]; }

  // Returns the line of the desktop entry that begins with this text. Empty when there is none.
  std::string EntryLine(const std::string& begin) {
    const std::string& text = File(Entry);
    const std::size_t at = text.find("\n" + begin);
    return at == std::string::npos ? std::string() : text.substr(at + 1, text.find('\n', at + 1) - at - 1);
  }

  RecordingPlatform platform;
};

TEST_F(XdgFileAssociation, MakesTheExtensionATypeOfFile) {
  Associate();

  EXPECT_EQ(File(Packages + "x-orby-orb.xml"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
            "  <mime-type type=\"application/x-orby-orb\">\n"
            "    <comment>ORB_File</comment>\n"
            "    <glob pattern=\"*.ORB\"/>\n"
            "  </mime-type>\n"
            "</mime-info>\n");
}

TEST_F(XdgFileAssociation, MakesTheProgramOpenTheType) {
  Associate();

  EXPECT_EQ(File(Entry),
            "[Desktop Entry]\n"
            "Type=Application\n"
            "Name=Orby Roof Support Workbench\n"
            "Comment=Roof support design for underground coal mines\n"
            "Exec=\"/program/orby\" %f\n"
            "Icon=orby\n"
            "Terminal=false\n"
            "Categories=Science;Engineering;\n"
            "MimeType=application/x-orby-orb;\n");
}

TEST_F(XdgFileAssociation, InstallsTheIconOfTheProgramAndItsFiles) {
  Associate();

  const std::string icons = "/home/user/.local/share/icons/hicolor/scalable/";
  EXPECT_EQ(File(icons + "apps/orby.svg"), "<svg/>");
  EXPECT_EQ(File(icons + "mimetypes/application-x-orby-orb.svg"), "<svg/>");
}

TEST_F(XdgFileAssociation, HasNoIconWhenTheProgramHasNone) {
  platform.files.files.clear();

  Associate();

  EXPECT_THAT(platform.files.files, UnorderedElementsAre(Key(Packages + "x-orby-orb.xml"), Key(Entry)));
  EXPECT_EQ(EntryLine("Icon="), "");
}

TEST_F(XdgFileAssociation, UpdatesTheDatabasesOfTheDesktop) {
  Associate();

  EXPECT_THAT(platform.documents.ran,
              ElementsAre(ElementsAre("update-mime-database", "/home/user/.local/share/mime"),
                          ElementsAre("update-desktop-database", "/home/user/.local/share/applications"),
                          ElementsAre("xdg-mime", "default", "orby.desktop", "application/x-orby-orb")));
}

TEST_F(XdgFileAssociation, KeepsTheExtensionAsTypedAndItsTypeInCapitals) {
  Associate("Orb");

  EXPECT_THAT(File(Packages + "x-orby-orb.xml"), HasSubstr("<glob pattern=\"*.Orb\"/>"));
  EXPECT_THAT(File(Packages + "x-orby-orb.xml"), HasSubstr("<comment>ORB_File</comment>"));
}

TEST_F(XdgFileAssociation, KeepsAnExtensionWithOddCharactersReadable) {
  Associate("a&b<2;");

  EXPECT_THAT(File(Packages + "x-orby-a-b-2-.xml"), HasSubstr("<comment>A&amp;B&lt;2;_File</comment>"));
  EXPECT_THAT(File(Packages + "x-orby-a-b-2-.xml"), HasSubstr("<glob pattern=\"*.a&amp;b&lt;2;\"/>"));
  EXPECT_EQ(EntryLine("MimeType="), "MimeType=application/x-orby-a-b-2-;");
}

TEST_F(XdgFileAssociation, KeepsLettersDigitsPlusMinusAndPointInTheNameOfTheType) {
  Associate("AZaz09+-.");

  EXPECT_EQ(EntryLine("MimeType="), "MimeType=application/x-orby-azaz09+-.;");
}

TEST_F(XdgFileAssociation, ReplacesOtherCharactersByAMinusInTheNameOfTheType) {
  Associate("x@[`{/:,");

  EXPECT_EQ(EntryLine("MimeType="), "MimeType=application/x-orby-x-------;");
}

TEST_F(XdgFileAssociation, TriesEveryStepWhenNothingCanBeWrittenOrRun) {
  platform.files.Fail(MemoryFiles::Step::Create, 70);
  platform.files.Fail(MemoryFiles::Step::MakeFolder, 75);
  platform.documents.opens = false;

  Associate();

  EXPECT_THAT(platform.documents.ran, SizeIs(3));
}

TEST_F(XdgFileAssociation, DoesNothingWithoutADataFolderOfTheUser) {
  platform.userFolders.data.reset();

  Associate();

  EXPECT_THAT(platform.files.files, ElementsAre(Key("/program/orby.svg")));
  EXPECT_THAT(platform.documents.ran, IsEmpty());
}

// A program folder with every character that has a meaning on a command line.
class OddlyPlacedFiles : public MemoryFiles {
 public:
  std::string ProgramFolder() override { return "/opt/my \"tools\"/a$b`c\\d%e"; }
};

TEST_F(XdgFileAssociation, QuotesThePathOfTheProgram) {
  OddlyPlacedFiles odd;

  Associate("ORB", odd);

  EXPECT_THAT(odd.files[Entry], HasSubstr("\nExec=\"/opt/my \\\\\"tools\\\\\"/a\\\\$b\\\\`c\\\\\\\\d%%e/orby\" %f\n"));
}

}  // namespace
}  // namespace orby::test
