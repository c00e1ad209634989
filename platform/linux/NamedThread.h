// Threads besides the main one.
#pragma once

#include <functional>
#include <thread>

#include <csignal>

namespace nerlo::platform {

// Blocks all signals in the calling thread, and in the threads that it starts meanwhile: they are
// the main thread's to handle. With SIGPIPE blocked, writing to a pipe that nobody reads is an
// error of write() instead of the program's end.
class SignalsBlocked {
  public:
    SignalsBlocked();
    ~SignalsBlocked();
    SignalsBlocked(const SignalsBlocked &) = delete;
    SignalsBlocked &operator=(const SignalsBlocked &) = delete;

  private:
    sigset_t before_;
};

// How the calling thread is called in debuggers and in /proc. At most 15 bytes.
void nameThisThread(const char *name);

// A thread of that name with all signals blocked.
std::thread startThread(const char *name, std::function<void()> run);

} // namespace nerlo::platform
