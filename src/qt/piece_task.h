// Work that takes long, done piece by piece between the events of the window.
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <functional>
#include <utility>

namespace orby {

class PieceTask : public QObject {
 public:
  // Does the next piece. Returns whether there is more to do.
  using Step = std::function<bool()>;

  // Gives up what is being done, does the first piece at once, and the others later.
  void Start(Step step) {
    Stop();
    step_ = std::move(step);
    timer_.start(0, this);
    DoPiece();
  }
  void Stop() {
    timer_.stop();
    step_ = nullptr;
  }
  bool IsRunning() const { return timer_.isActive(); }

 protected:
  void timerEvent(QTimerEvent*) override { DoPiece(); }

 private:
  void DoPiece() {
    const Step step = step_;  // it may start another
    if (!step || step()) return;
    if (timer_.isActive()) Stop();
  }

  QBasicTimer timer_;
  Step step_;
};

}  // namespace orby
