// Shows the pages of a help file with their pictures. Nothing from outside the file is ever fetched or opened.
#pragma once

#include <QTextBrowser>
#include <string>

namespace orby {

class ChmFile;

class HelpBrowser : public QTextBrowser {
 public:
  // The file must live as long as this.
  HelpBrowser(const ChmFile& file, QWidget* parent);

  // Shows a place, "graph.html#frmGraph.Text1"; one that the file does not have changes nothing.
  void GoTo(const std::string& place);
  // The place that is shown.
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
