// What a spreadsheet file holds.
#pragma once

#include <QProcess>
#include <QString>
#include <QXmlStreamReader>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace orby::test {

// A part of the file, such as "xl/worksheets/sheet1.xml".
inline QByteArray SheetPart(const QString& path, const QString& part) {
  QProcess reader;
  reader.start("unzip", {"-p", path, part});
  if (!reader.waitForFinished() || reader.exitCode() != 0) throw std::logic_error("no part " + part.toStdString());
  return reader.readAllStandardOutput();
}

// The texts that cells refer to by their number.
inline std::vector<std::string> SharedTexts(const QString& path) {
  std::vector<std::string> texts;
  QXmlStreamReader xml(SheetPart(path, "xl/sharedStrings.xml"));
  while (!xml.atEnd()) {
    if (xml.readNextStartElement() && xml.name() == QString("t")) texts.push_back(xml.readElementText().toStdString());
  }
  return texts;
}

// The cells of the sheet by their names, numbers as they are written.
inline std::map<std::string, std::string> SheetCells(const QString& path) {
  const std::vector<std::string> texts = SharedTexts(path);
  std::map<std::string, std::string> cells;
  QXmlStreamReader xml(SheetPart(path, "xl/worksheets/sheet1.xml"));
  std::string name;
  bool isText = false;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QString("c")) {
      name = xml.attributes().value("r").toString().toStdString();
      isText = xml.attributes().value("t") == QString("s");
    } else if (xml.name() == QString("v")) {
      const QString value = xml.readElementText();
      cells[name] = isText ? texts.at(value.toUInt()) : value.toStdString();
    }
  }
  return cells;
}

}  // namespace orby::test
