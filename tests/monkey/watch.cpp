#include "monkey/watch.h"

#include <dlfcn.h>
#include <execinfo.h>
#include <pthread.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <thread>
#include <typeinfo>

#include "base/runtime_error.h"

#ifdef __has_feature
#if __has_feature(address_sanitizer)
#define ORBY_MONKEY_SANITIZED
#endif
#endif

namespace orby::monkey {
namespace {

constexpr int MostCalls = 60;
using Calls = std::array<void*, MostCalls>;

struct Thrown {
  int number;
  int callCount;
  Calls calls;
};

constexpr int ThrowsKept = 16;

RunRecord* record = nullptr;
Ledger* ledger = nullptr;
pthread_t watched;
std::atomic<std::chrono::steady_clock::rep> actBegan{0};
std::array<Thrown, ThrowsKept> throws{};
int throwCount = 0;

std::chrono::steady_clock::rep Now() { return std::chrono::steady_clock::now().time_since_epoch().count(); }

long MillisecondsSince(std::chrono::steady_clock::rep moment) {
  using std::chrono::steady_clock;
  return std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::duration(Now() - moment)).count();
}

// Writes one line per call: the address in this program, or the library and its routine. Safe enough for a signal
// handler, because the process is lost anyway.
void WriteCalls(const Calls& calls, int count, char* text, std::size_t size) {
  Dl_info own{};
  dladdr(reinterpret_cast<void*>(&WriteCalls), &own);
  std::size_t at = 0;
  for (int i = 0; i < count && at + 1 < size; ++i) {
    Dl_info call{};
    const bool known = dladdr(calls[static_cast<std::size_t>(i)], &call) != 0 && call.dli_fname != nullptr;
    int written = 0;
    if (known && call.dli_fbase == own.dli_fbase) {
      const auto* base = static_cast<const char*>(own.dli_fbase);
      const auto* place = static_cast<const char*>(calls[static_cast<std::size_t>(i)]);
      written = std::snprintf(text + at, size - at, "0x%tx\n", place - base - 1);
    } else {
      const char* name = known ? std::strrchr(call.dli_fname, '/') : nullptr;
      written = std::snprintf(text + at, size - at, "%s %s\n", name == nullptr ? "?" : name + 1,
                              known && call.dli_sname != nullptr ? call.dli_sname : "?");
    }
    at += static_cast<std::size_t>(written);
  }
  text[size - 1] = '\0';
}

void NoteEnd(Ending ending, const char* what) {
  if (record->ending != Ending::Running) return;
  record->ending = ending;
  record->act = ledger->acts;
  record->what.Set(what);
  record->log = ledger->log;
  Calls calls;
  const int count = backtrace(calls.data(), MostCalls);
  WriteCalls(calls, count, record->trace.bytes.data(), record->trace.bytes.size());
}

void OnHang(int) {
  NoteEnd(Ending::Hung, "an act that does not end");
  _exit(EXIT_FAILURE);
}

[[maybe_unused]] void OnCrash(int signal) {
  NoteEnd(Ending::Crashed, sigdescr_np(signal));
  _exit(EXIT_FAILURE);
}

void OnTerminate() {
  std::string what = "terminate";
  if (const std::exception_ptr error = std::current_exception()) {
    try {
      std::rethrow_exception(error);
    } catch (const std::exception& known) {
      what = std::string("an exception that nothing caught: ") + known.what();
    } catch (...) {
      what = "an exception that nothing caught";
    }
  }
  NoteEnd(Ending::Crashed, what.c_str());
  _exit(EXIT_FAILURE);
}

void Watch(int patience) {
  using std::chrono::milliseconds;
  constexpr milliseconds Between(200);
  for (;;) {
    std::this_thread::sleep_for(Between);
    if (MillisecondsSince(actBegan) > patience * 1000L) {
      pthread_kill(watched, SIGUSR2);
      // The process may not even handle the signal.
      std::this_thread::sleep_for(milliseconds(3000));
      NoteEnd(Ending::Hung, "an act that does not end, in a call that hears no signal");
      _exit(EXIT_FAILURE);
    }
  }
}

}  // namespace

void StartWatch(RunRecord& recordGiven, Ledger& ledgerGiven, int patience) {
  record = &recordGiven;
  ledger = &ledgerGiven;
  watched = pthread_self();
  actBegan = Now();
  Calls calls;
  backtrace(calls.data(), 1);  // loads a library that the handler needs
  std::signal(SIGUSR2, OnHang);
  std::set_terminate(OnTerminate);
#ifndef ORBY_MONKEY_SANITIZED
  // After a stack overflow the handler needs a stack of its own.
  static std::array<char, 1 << 18> spare;
  stack_t stack{};
  stack.ss_sp = spare.data();
  stack.ss_size = spare.size();
  sigaltstack(&stack, nullptr);
  struct sigaction action {};
  action.sa_handler = OnCrash;
  action.sa_flags = SA_ONSTACK;
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) sigaction(signal, &action, nullptr);
#endif
  std::thread(Watch, patience).detach();
}

void NoteAct() {
  const long took = MillisecondsSince(actBegan);
  if (took > ledger->slowest) {
    ledger->slowest = took;
    ledger->slowestAct = ledger->log[static_cast<std::size_t>(ledger->acts % ActsShown)];
  }
  actBegan = Now();
}

static void NoteThrow(const void* thrown, const std::type_info& type) {
  if (type != typeid(RuntimeError)) return;
  Thrown& kept = throws[static_cast<std::size_t>(throwCount++ % ThrowsKept)];
  kept.number = static_cast<const RuntimeError*>(thrown)->number();
  kept.callCount = backtrace(kept.calls.data(), MostCalls);
}

std::string OriginOfError(int number) {
  for (int i = throwCount - 1; i >= 0 && i >= throwCount - ThrowsKept; --i) {
    const Thrown& kept = throws[static_cast<std::size_t>(i % ThrowsKept)];
    if (kept.number != number) continue;
    FixedText<8000> text{};
    WriteCalls(kept.calls, kept.callCount, text.bytes.data(), text.bytes.size());
    return std::string(text.View());
  }
  return {};
}

}  // namespace orby::monkey

// The linker replaces the throwing routine of the runtime library by this one.
extern "C" {
[[noreturn]] void __real___cxa_throw(void* thrown, std::type_info* type, void (*destroy)(void*));
[[noreturn]] void __wrap___cxa_throw(void* thrown, std::type_info* type, void (*destroy)(void*));
void __wrap___cxa_throw(void* thrown, std::type_info* type, void (*destroy)(void*)) {
  orby::monkey::NoteThrow(thrown, *type);
  __real___cxa_throw(thrown, type, destroy);
}
}
