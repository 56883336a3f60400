// SPDX-License-Identifier: MIT
// Compiled once for every target that has windows.
#pragma once

#include "cmake/precompiled/core.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
