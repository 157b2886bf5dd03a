// SPDX-License-Identifier: MIT
#include "Main.h"

int main(int argc, char *argv[])
{
  return Main_run(argc, argv);
}
