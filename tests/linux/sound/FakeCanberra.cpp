// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for libcanberra: writes a line for each call to the descriptor that $FAKE_CANBERRA names.
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

int context = 0;

void tell(std::string line, va_list properties) {
    for (const char* name = va_arg(properties, const char*); name != nullptr; name = va_arg(properties, const char*))
        line += std::string(" ") + name + "=" + va_arg(properties, const char*);
    line += '\n';
    const char* descriptor = std::getenv("FAKE_CANBERRA");
    if (descriptor == nullptr || write(std::atoi(descriptor), line.data(), line.size()) < 0)
        std::abort();
}

} // namespace

extern "C" {

int ca_context_create(void** made) {
    *made = &context;
    return std::getenv("FAKE_CANBERRA_FAILS") != nullptr ? -1 : 0;
}

int ca_context_change_props(void* of, ...) {
    va_list properties;
    va_start(properties, of);
    tell("properties", properties);
    va_end(properties);
    return of == &context ? 0 : -1;
}

int ca_context_play(void* on, std::uint32_t identifier, ...) {
    va_list properties;
    va_start(properties, identifier);
    tell("play", properties);
    va_end(properties);
    return on == &context ? 0 : -1;
}
}
