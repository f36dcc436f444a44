// The smallest program that uses the library, to measure the time of process start.

#include "SdkDebugDialog/Engine.h"

int main() {
  const SdkDebugDialog::Engine engine;
  return engine.imp == nullptr ? 1 : 0;
}
