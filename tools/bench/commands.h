#pragma once

#include <QStringList>

namespace bench {

/// Prints one figure: `name value unit`.
void figure(const char* name, double value, const char* unit);

// One function a command; arguments after the command's own word. They return the exit status.
int print(const QStringList& arguments);
int jobs(const QStringList& arguments);
int make(const QStringList& arguments);
int find(const QStringList& arguments);
int list(const QStringList& arguments);
int day(const QStringList& arguments);
int recompute(const QStringList& arguments);
int pair(const QStringList& arguments);
int settings(const QStringList& arguments);
int backup(const QStringList& arguments);

}  // namespace bench
