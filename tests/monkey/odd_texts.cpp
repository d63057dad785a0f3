#include "monkey/odd_texts.h"

#include <QDir>
#include <array>
#include <vector>

namespace orby::monkey {
namespace {

QString Home(const QString& name) { return QDir::homePath() + "/Documents/" + name; }

}  // namespace

QString PlausibleText(Dice& dice) {
  static const std::vector<QString> texts{"0.5", "0.9", "1",  "1.2", "2",   "3",   "4",   "4.5", "5",    "6",    "8",
                                          "10",  "12",  "15", "16",  "18",  "20",  "25",  "35",  "45",   "50",   "55",
                                          "60",  "75",  "90", "100", "160", "250", "400", "820", "1000", "30000"};
  return dice.OneOf(texts);
}

QString OddText(Dice& dice) {
  static const std::vector<QString> texts{"",
                                          "0",
                                          "-",
                                          "-1",
                                          "-0.5",
                                          "0.9",
                                          "1E40",
                                          "1E400",
                                          "-1E40",
                                          "1E999",
                                          "1e-45",
                                          "3.4028235E38",
                                          "1.7976931348623157E308",
                                          "32767",
                                          "32768",
                                          "99999999",
                                          "1,5",
                                          "1.2.3",
                                          ".",
                                          "+",
                                          "1 2",
                                          "1E",
                                          "1D5",
                                          "&H1F",
                                          "NaN",
                                          "inf",
                                          QString::fromUtf8("\xC3\xA9"),
                                          QString::fromUtf8("\xEF\xBC\x91\xEF\xBC\x92"),
                                          QString::fromUtf8("\xE2\x80\xAE"
                                                            "123"),
                                          QString::fromUtf8("\xF0\x9F\xAA\xA8"),
                                          "letters",
                                          "\"",
                                          "\"open",
                                          "##StartDesc##",
                                          "##EndDesc##",
                                          " 0 ",
                                          "a,b",
                                          "&&&",
                                          "<b>bold</b>",
                                          "%1 %s %n",
                                          "two\nlines",
                                          "a\tb",
                                          QString(QChar(1)) + QChar(2) + QChar(127),
                                          QString("0") + QChar(0) + "1",
                                          "Unknown",
                                          "Manual Setting",
                                          QString(300, '9'),
                                          QString(40000, 'w')};
  return dice.OneOf(texts);
}

QString FilePath(Dice& dice) {
  const QString digit = QString::number(dice.Below(6));
  const std::array<QString, 10> own{"whole" + digit + ".ORB",
                                    "whole" + digit + ".ORB",
                                    "damaged" + digit + ".ORB",
                                    "cut" + digit + ".ORB",
                                    "noise.ORB",
                                    "empty.ORB",
                                    "long.ORB",
                                    "notes.txt",
                                    "noextension",
                                    QString::fromUtf8("caf\xC3\xA9 1,5.ORB")};
  if (!dice.OneIn(3)) return Home(dice.OneOf(own));
  static const QStringList examples = QDir(EXAMPLES_DIR).entryList({"*.ORB"}, QDir::Files, QDir::Name);
  return QString(EXAMPLES_DIR) + "/" + dice.OneOf(examples);
}

QString FileName(Dice& dice) {
  if (dice.Percent(60)) return FilePath(dice);
  const QString digit = QString::number(dice.Below(4));
  const std::array<QString, 11> names{Home("made" + digit + ".ORB"),
                                      Home("made" + digit),
                                      Home("made" + digit + ".pdf"),
                                      Home("folder.ORB"),
                                      Home("circle.ORB"),
                                      Home("../Desktop/made" + digit + ".ORB"),
                                      Home("no folder/made.ORB"),
                                      "made" + digit,
                                      "..",
                                      QString::fromUtf8("\xC3\xA9\xC3\xA9.ORB"),
                                      Home(QString(280, 'n') + ".ORB")};
  return dice.OneOf(names);
}

}  // namespace orby::monkey
