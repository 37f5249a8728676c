// A choice between two values without a branch: for the Pentium Pro GCC
// makes it a CMOV, for the 486 a jump. The test command runs the processor
// check on both objects; it must refuse the first and pass the second.
int tl99_cpu486_probe(int a, int b, int c, int d) { return a < b ? c : d; }
