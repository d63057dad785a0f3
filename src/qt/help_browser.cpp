#include "qt/help_browser.h"

#include <QImage>

#include "qt/chm_file.h"
#include "qt/texts.h"
#include "shell/help_book.h"

namespace orby {
namespace {

constexpr const char* Scheme = "help";

QUrl Root() { return QUrl(QString(Scheme) + ":/"); }

// The name of the file inside.
std::string NameIn(const QUrl& url) { return FromQt(url.path().mid(1)); }

}  // namespace

HelpBrowser::HelpBrowser(const ChmFile& file, QWidget* parent) : QTextBrowser(parent), file_(file) {
  setOpenExternalLinks(false);
  // A picture is fitted to the page before it is known whether the page needs the bar.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
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

// No wider than what is on view of the page.
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
