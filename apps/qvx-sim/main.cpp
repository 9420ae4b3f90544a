#include <cstdio>
int main() {
  std::puts("qvx-sim");
  return 0;
}
