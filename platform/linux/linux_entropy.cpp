#include "platform/linux/linux_entropy.h"

#include "platform/failure.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>

#include <sys/random.h>
#include <sys/types.h>

namespace orvane {

void LinuxEntropy::Fill(std::span<std::byte> bytes) {
    std::span<std::byte> rest = bytes;
    while (!rest.empty()) {
        const ssize_t count = ::getrandom(rest.data(), rest.size(), GRND_NONBLOCK);
        const int error = count == 0 ? EIO : errno;
        if (count > 0) {
            rest = rest.subspan(static_cast<std::size_t>(count));
        } else if (error != EINTR) {
            std::fill(bytes.begin(), bytes.end(), std::byte{0});
            throw Failure("The operating system gives no random numbers, so no list can be drawn: " +
                              std::generic_category().message(error),
                          failure_number::NoEntropy, "Random source");
        }
    }
}

} // namespace orvane
