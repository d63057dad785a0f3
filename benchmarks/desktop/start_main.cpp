// Runs one start, named on the command line: see starts.h. Builds for every machine.
#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "desktop/starts.h"

int main(int argc, char** argv) {
  const std::string name = argc == 2 ? argv[1] : "";
  if (!orby::IsStart(name)) {
    std::fputs("usage: orby-start-bench empty-start|start|project|empty-browser|help\n", stderr);
    return EXIT_FAILURE;
  }
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return orby::RunStart(name);
}
