// Precompiled for everything that draws.
#pragma once

#include "Core.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QSettings>
#include <QStyle>
#include <QToolButton>
#include <QTreeView>
#include <QWidget>
