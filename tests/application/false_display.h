#ifndef APPLICATION_FALSE_DISPLAY_H
#define APPLICATION_FALSE_DISPLAY_H

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>

/// Stands where the server of a display would be. It counts who connects, and hangs up.
class FalseDisplay {
 public:
  FalseDisplay() {
    fcntl(socket_, F_SETFL, O_NONBLOCK);
    while (!listens_at(++number_)) {
      if (number_ == kLast) throw std::runtime_error("there is no free display number");
    }
    server_ = std::thread([this] {
      while (!done_) serve();
    });
  }
  FalseDisplay(const FalseDisplay&) = delete;
  FalseDisplay& operator=(const FalseDisplay&) = delete;
  ~FalseDisplay() {
    stop();
    close(socket_);
  }

  /// As DISPLAY names it.
  std::string name() const { return "127.0.0.1:" + std::to_string(number_); }

  /// How many connections were made. It takes no more.
  int connections() {
    stop();
    hang_up();
    return connections_;
  }

 private:
  static constexpr int kFirst = 100;
  static constexpr int kLast = 1000;
  static constexpr int kPortOfDisplayZero = 6000;

  bool listens_at(int number) const {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<in_port_t>(kPortOfDisplayZero + number));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 && listen(socket_, 8) == 0;
  }

  void serve() {
    pollfd waiting{socket_, POLLIN, 0};
    poll(&waiting, 1, 10);
    hang_up();
  }

  /// On all who have connected meanwhile.
  void hang_up() {
    for (int client = 0; (client = accept(socket_, nullptr, nullptr)) >= 0; close(client)) ++connections_;
  }

  void stop() {
    done_ = true;
    if (server_.joinable()) server_.join();
  }

  int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  int number_ = kFirst;
  int connections_ = 0;
  std::atomic<bool> done_ = false;
  std::thread server_;
};

#endif
