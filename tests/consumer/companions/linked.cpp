// A solver that has been linked.
extern "C" int solve(const char* fileName);

int main(int, char** arguments) { return solve(arguments[1]); }
