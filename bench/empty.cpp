// What it costs to start a program that links the same libraries as vqconfig: the benchmark subtracts or compares it.
int main() { return 0; }
