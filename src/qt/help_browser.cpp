#include "qt/help_browser.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>

#include "help/chm_file.h"
#include "help/help_book.h"
#include "qt/contrast.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr const char* Scheme = "help";

QUrl Root() { return QUrl(QString(Scheme) + ":/"); }

// Many dark themes define no link colour and keep the dark blue of a light theme.
QColor LinkColor(const QPalette& palette) {
  return Readable(palette.color(QPalette::Link), palette.color(QPalette::Base), ContrastOfSmoothedText);
}

// Returns the name of the file inside the help file.
std::string NameIn(const QUrl& url) { return FromQt(url.path().mid(1)); }

}  // namespace

HelpBrowser::HelpBrowser(const ChmFile& file, QWidget* parent) : QTextBrowser(parent), file_(file) {
  setOpenExternalLinks(false);
  // Pictures are fitted to the width before it is known whether the page needs a scroll bar.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  ShowTheme();
}

// The page takes the link colour when it is loaded, so it is reloaded.
void HelpBrowser::ShowTheme() {
  document()->setDefaultStyleSheet("a { color: " + LinkColor(palette()).name() + " }");
  if (source().isEmpty()) return;
  const int before = verticalScrollBar()->value();
  reload();
  verticalScrollBar()->setValue(before);
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowTheme();
}

void HelpBrowser::GoTo(const std::string& place) { setSource(Root().resolved(QUrl(ToQt(place)))); }

std::string HelpBrowser::PlaceAt(const QUrl& url) {
  const std::string page = NameIn(url);
  return url.hasFragment() ? page + "#" + FromQt(url.fragment()) : page;
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  const QUrl whole = Root().resolved(name);
  if (whole.scheme() == Scheme && file_.Has(NameIn(whole))) QTextBrowser::doSetSource(whole, type);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  const QUrl whole = Root().resolved(name);
  if (whole.scheme() != Scheme) return {};
  const auto bytes = file_.Read(NameIn(whole));
  if (!bytes) return {};
  if (type == QTextDocument::ImageResource) return FittingPicture(*bytes);
  return type == QTextDocument::HtmlResource ? QVariant(ToQt(*bytes)) : QVariant();
}

// Returns the picture, scaled down to the visible width of the page if it is wider.
QImage HelpBrowser::FittingPicture(const std::string& bytes) const {
  const auto* start = reinterpret_cast<const uchar*>(bytes.data());
  QImage picture = QImage::fromData(start, static_cast<int>(bytes.size()));
  const qreal scale = devicePixelRatioF();
  const int most = static_cast<int>((viewport()->width() - 2 * document()->documentMargin()) * scale);
  if (most > 0 && picture.width() * scale > most) picture = picture.scaledToWidth(most, Qt::SmoothTransformation);
  if (picture.width() == most) picture.setDevicePixelRatio(scale);
  return picture;
}

}  // namespace orby
