#include "config/file_association.h"

#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAre;

const std::string Packages = "/home/user/.local/share/mime/packages/";
const std::string Entry = "/home/user/.local/share/applications/orby.desktop";

struct FileAssociation : ProgramBench {
  FileAssociation() { platform.files.files["/program/orby.svg"] = "<svg/>"; }

  void Associate() {
    platform.boxes.answers = {box_result::Yes};
    AssociateFileExtension(program);
  }

  std::string& File(const std::string& path) { return platform.files.files[path]; }

  // The line of the desktop entry that begins like this; empty without one.
  std::string EntryLine(const std::string& begin) {
    const std::string& text = File(Entry);
    const std::size_t at = text.find("\n" + begin);
    return at == std::string::npos ? std::string() : text.substr(at + 1, text.find('\n', at + 1) - at - 1);
  }
};

TEST_F(FileAssociation, AsksFirst) {
  AssociateFileExtension(program);

  EXPECT_THAT(platform.boxes.shown,
              ElementsAre(IsBox("This operation may break an existing association of file extension ORB with other "
                                "programs on this computer. Proceed?",
                                box_style::YesNo, "Orby Roof Support Workbench")));
}

TEST_F(FileAssociation, ChangesNothingOnNo) {
  platform.boxes.answers = {box_result::No};

  AssociateFileExtension(program);

  EXPECT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_THAT(platform.files.files, ElementsAre(Key("/program/orby.svg")));
  EXPECT_THAT(platform.documents.ran, IsEmpty());
}

TEST_F(FileAssociation, TellsWhatItHasDone) {
  Associate();

  EXPECT_EQ(platform.boxes.Texts().back(),
            "The ORB file extensions has been associated to /program/\r\n\r\nNote: if order for this function to be "
            "successfully completed the user needs to have access to the registry");
  EXPECT_THAT(program.history.Text, HasSubstr("The ORB file extensions has been associated to /program/\r\n"));
}

TEST_F(FileAssociation, MakesTheExtensionATypeOfFile) {
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

TEST_F(FileAssociation, MakesTheProgramOpenTheType) {
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

TEST_F(FileAssociation, GivesProgramAndFilesTheirIcon) {
  Associate();

  const std::string icons = "/home/user/.local/share/icons/hicolor/scalable/";
  EXPECT_EQ(File(icons + "apps/orby.svg"), "<svg/>");
  EXPECT_EQ(File(icons + "mimetypes/application-x-orby-orb.svg"), "<svg/>");
}

TEST_F(FileAssociation, LeavesTheIconOutWhenTheProgramCameWithoutOne) {
  platform.files.files.clear();

  Associate();

  EXPECT_THAT(platform.files.files, UnorderedElementsAre(Key(Packages + "x-orby-orb.xml"), Key(Entry)));
  EXPECT_EQ(EntryLine("Icon="), "");
}

TEST_F(FileAssociation, TellsTheDesktop) {
  Associate();

  EXPECT_THAT(platform.documents.ran,
              ElementsAre(ElementsAre("update-mime-database", "/home/user/.local/share/mime"),
                          ElementsAre("update-desktop-database", "/home/user/.local/share/applications"),
                          ElementsAre("xdg-mime", "default", "orby.desktop", "application/x-orby-orb")));
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(FileAssociation, KeepsTheExtensionAsTypedAndItsTypeInCapitals) {
  program.settings.FileExtension = "Orb";

  Associate();

  EXPECT_THAT(File(Packages + "x-orby-orb.xml"), HasSubstr("<glob pattern=\"*.Orb\"/>"));
  EXPECT_THAT(File(Packages + "x-orby-orb.xml"), HasSubstr("<comment>ORB_File</comment>"));
  EXPECT_THAT(platform.boxes.Texts().back(), HasSubstr("The Orb file extensions"));
}

TEST_F(FileAssociation, KeepsAnExtensionWithOddCharactersReadable) {
  program.settings.FileExtension = "a&b<2;";

  Associate();

  EXPECT_THAT(File(Packages + "x-orby-a-b-2-.xml"), HasSubstr("<comment>A&amp;B&lt;2;_File</comment>"));
  EXPECT_THAT(File(Packages + "x-orby-a-b-2-.xml"), HasSubstr("<glob pattern=\"*.a&amp;b&lt;2;\"/>"));
  EXPECT_EQ(EntryLine("MimeType="), "MimeType=application/x-orby-a-b-2-;");
}

TEST_F(FileAssociation, KeepsLettersDigitsPlusMinusAndPointOfTheExtensionInTheNameOfItsType) {
  program.settings.FileExtension = "AZaz09+-.";

  Associate();

  EXPECT_EQ(EntryLine("MimeType="), "MimeType=application/x-orby-azaz09+-.;");
}

TEST_F(FileAssociation, ReplacesTheNeighboursOfThoseCharactersByAMinus) {
  program.settings.FileExtension = "x@[`{/:,";

  Associate();

  EXPECT_EQ(EntryLine("MimeType="), "MimeType=application/x-orby-x-------;");
}

TEST_F(FileAssociation, SaysThatItIsDoneEvenWhenNothingCanBeWrittenOrRun) {
  platform.files.Fail(MemoryFiles::Step::Create, 70);
  platform.files.Fail(MemoryFiles::Step::MakeFolder, 75);
  platform.documents.opens = false;

  Associate();

  EXPECT_THAT(platform.boxes.Texts().back(), HasSubstr("has been associated"));
  EXPECT_THAT(platform.documents.ran, SizeIs(3));
}

TEST_F(FileAssociation, SaysThatItIsDoneEvenWithoutAFolderForIt) {
  platform.userFolders.data.reset();

  Associate();

  EXPECT_THAT(platform.boxes.Texts().back(), HasSubstr("has been associated"));
  EXPECT_THAT(platform.files.files, ElementsAre(Key("/program/orby.svg")));
  EXPECT_THAT(platform.documents.ran, IsEmpty());
}

// A folder of the program with every character that means something on a command line.
class OddlyPlacedFiles : public MemoryFiles {
 public:
  std::string ProgramFolder() override { return "/opt/my \"tools\"/a$b`c\\d%e"; }
};

TEST_F(FileAssociation, QuotesThePathOfTheProgram) {
  OddlyPlacedFiles odd;
  Program placed(platform.DoorsWith(odd));
  platform.boxes.answers = {box_result::Yes};

  AssociateFileExtension(placed);

  EXPECT_THAT(odd.files[Entry], HasSubstr("\nExec=\"/opt/my \\\\\"tools\\\\\"/a\\\\$b\\\\`c\\\\\\\\d%%e/orby\" %f\n"));
}

}  // namespace
}  // namespace orby::test
