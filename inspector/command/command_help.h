// What --help says after the options: examples, with what they print. The tests run them.
#pragma once

namespace mava_tum_cli::help
{

extern const char *const overview;
extern const char *const decode;
extern const char *const explain;
extern const char *const encode;
extern const char *const app;
extern const char *const check;
extern const char *const guess;
extern const char *const diff;
extern const char *const list;
extern const char *const web;

} // namespace mava_tum_cli::help
