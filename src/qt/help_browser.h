// Shows the pages of a help file with their pictures. Fetches and opens nothing outside the file.
#pragma once

#include <QTextBrowser>
#include <string>

namespace orby {

class ChmFile;

class HelpBrowser : public QTextBrowser {
 public:
  // The file must outlive this object.
  HelpBrowser(const ChmFile& file, QWidget* parent);

  // Shows a place such as "graph.html#frmGraph.Text1". Does nothing if the file does not have it.
  void GoTo(const std::string& place);
  // Returns the shown place.
  std::string Place() const { return PlaceAt(source()); }
  static std::string PlaceAt(const QUrl& url);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  void changeEvent(QEvent* event) override;

 private:
  void ShowTheme();
  QImage FittingPicture(const std::string& bytes) const;

  const ChmFile& file_;
};

}  // namespace orby
