// SPDX-License-Identifier: MIT
#include "WTextAreaPlus.h"

WTextAreaPlus::WTextAreaPlus(Wt::WContainerWidget *parent) : WEditPlus<Wt::WTextArea>(parent) {}
