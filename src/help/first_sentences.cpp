#include "help/first_sentences.h"

#include <vector>

#include "help/markup.h"

namespace orby {
namespace {

// Returns the words of decoded markup, separated by single spaces.
std::string Words(std::string_view text) {
  std::string words;
  bool isPending = false;
  for (const char letter : text) {
    const bool isSpace = letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n';
    if (!isSpace && isPending && !words.empty()) words += ' ';
    isPending = isSpace;
    if (!isSpace) words += letter;
  }
  return words;
}

std::string FirstOf(const std::string& paragraph) {
  const std::size_t end = paragraph.find(". ");
  return end == std::string::npos ? paragraph : paragraph.substr(0, end + 1);
}

// Reads a page tag by tag.
class Reader {
 public:
  void Take(const MarkupPiece& piece) {
    if (place_ != Place::Term) paragraph_ += DecodedText(piece.text);
    const std::string& tag = piece.tag;
    if (tag == "P" || tag == "/P" || tag == "/DD" || tag == "/TD" || tag == "/DL" || tag == "DT" || tag.empty()) End();
    if (tag == "DT") {
      // Several terms may share a description.
      if (place_ != Place::Term) anchors_.clear();
      Enter(Place::Term);
    } else if (tag == "TD") {
      anchors_.clear();
      Enter(Place::Cell);
    } else if (tag == "DD") {
      Enter(Place::Description);
    } else if (tag == "A" && (place_ == Place::Term || place_ == Place::Cell)) {
      if (std::string name = AttributeOf(piece, "name"); !name.empty()) anchors_.push_back(std::move(name));
    }
  }

  Sentences Result() { return std::move(sentences_); }

 private:
  enum class Place { Elsewhere, Term, Description, Cell };

  void Enter(Place place) {
    place_ = place;
    paragraph_.clear();
  }

  // Ends a paragraph. The first one that is not empty has the sentence.
  void End() {
    const std::string sentence = FirstOf(Words(paragraph_));
    paragraph_.clear();
    if (sentence.empty() || (place_ != Place::Description && place_ != Place::Cell)) return;
    for (const std::string& anchor : anchors_) sentences_.emplace(anchor, sentence);
    place_ = Place::Elsewhere;
  }

  Sentences sentences_;
  std::vector<std::string> anchors_;  // of the term or the cell
  std::string paragraph_;
  Place place_ = Place::Elsewhere;
};

}  // namespace

Sentences FirstSentences(std::string_view page) {
  Reader reader;
  while (!page.empty()) reader.Take(TakeMarkup(page));
  return reader.Result();
}

}  // namespace orby
