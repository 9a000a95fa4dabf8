// The least that a program can do, for comparison.

int main() {}
