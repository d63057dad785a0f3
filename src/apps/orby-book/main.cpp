// orby-book: makes the PDF files of the help from its pages.
#include <QFile>
#include <QGuiApplication>
#include <QHashSeed>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "apps/orby-book/printed_book.h"
#include "core/program.h"
#include "core/version.h"

namespace {

using namespace orby;

constexpr const char* Usage =
    "usage: orby-book manual HELPFOLDER OUT.pdf      the manual: all pages of HELPFOLDER/contents.txt\n"
    "       orby-book document PAGE.html OUT.pdf     one document\n"
    "The same pages give the same bytes.\n";

QString NameOfProgram() { return QString::fromStdString(std::string(ProgramTitle)); }

QString Cover() {
  const QString version = QString::fromStdString(VersionText(true));
  return QString(
             "<p><br><br><br><br><br><br><br></p><p class=\"cover\">%1</p><p class=\"under\">Manual</p>"
             "<p class=\"under\">Version %2</p><hr>"
             "<p>Design of the roof support of underground coal mines: roof bolts, cables, trusses and standing "
             "supports.</p>")
      .arg(NameOfProgram(), version);
}

void Write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
    throw std::runtime_error("cannot write " + path.toStdString());
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::string kind = argc == 4 ? argv[1] : "";
  if (kind != "manual" && kind != "document") {
    std::fputs(Usage, stderr);
    return EXIT_FAILURE;
  }
  try {
    // Nothing is shown, and nothing of the screen counts.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_SCALE_FACTOR");
    // The order of the fonts in the file.
    QHashSeed::setDeterministicGlobalSeed();
    const QGuiApplication application(argc, argv);
    const QString source = QString::fromLocal8Bit(argv[2]);
    const bool isManual = kind == "manual";
    const BookSource book = isManual ? ReadManual(source, NameOfProgram()) : ReadDocument(source);
    Write(QString::fromLocal8Bit(argv[3]), PrintBook(book, isManual ? Cover() : QString()));
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orby-book: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
