/* A dial: a round scale from 0 to 100 with a needle.  It turns when it is clicked on, and calls its callback. */
#ifndef DIAL_H
#define DIAL_H

#include <X11/Intrinsic.h>

#define DialNvalue "value"
#define DialNdirection "direction"
#define DialRDirection "DialDirection"

/* The way that the needle turns as the value grows. */
enum { DialClockwise, DialAnticlockwise };

extern WidgetClass dialWidgetClass;

#endif
