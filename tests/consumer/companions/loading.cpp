// A program that loads a solver and its companion libraries in the order of the command line; what begins with "+" for
// all to see.
#include <dlfcn.h>

#include <cstdio>

int main(int count, char** arguments) {
  int (*solve)(const char*) = nullptr;
  for (int i = 2; i < count; ++i) {
    const bool isGlobal = arguments[i][0] == '+';
    void* const library = dlopen(arguments[i] + (isGlobal ? 1 : 0), RTLD_NOW | (isGlobal ? RTLD_GLOBAL : RTLD_LOCAL));
    if (library == nullptr) return std::fprintf(stderr, "%s\n", dlerror()), 2;
    if (void* const symbol = dlsym(library, "solve")) solve = reinterpret_cast<int (*)(const char*)>(symbol);
  }
  return solve == nullptr ? 2 : solve(arguments[1]);
}
