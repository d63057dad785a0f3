// Runs a long task in pieces between the events of the window.
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <functional>
#include <utility>

namespace orby {

class PieceTask : public QObject {
 public:
  // Does the next piece. Returns true if there is more to do. It may start another task, which replaces this one.
  using Step = std::function<bool()>;

  // Stops the running task. Does the first piece at once and the others later.
  void Start(Step step) {
    Stop();
    ++started_;
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
    const Step step = step_;
    const int started = started_;
    if (!step || step()) return;
    // The piece may have started another task, which continues.
    if (started == started_) Stop();
  }

  QBasicTimer timer_;
  Step step_;
  int started_ = 0;  // number of tasks started
};

}  // namespace orby
