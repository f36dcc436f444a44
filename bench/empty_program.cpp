// The least program that uses the library: what it costs to be started.

#include "SdkDebugDialog/Engine.h"

int main() {
  const SdkDebugDialog::Engine engine;
  return engine.imp == nullptr ? 1 : 0;
}
