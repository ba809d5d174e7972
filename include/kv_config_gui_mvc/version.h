/**
 * @file version.h
 * The version of the settings dialog and of these headers, by Semantic Versioning: what is built
 * for 1.x works with every later 1.y. The build, its packages and the program take it from here.
 */
#ifndef KV_CONFIG_GUI_MVC_VERSION_H
#define KV_CONFIG_GUI_MVC_VERSION_H

/** Major, minor and patch. */
#define KV_MVC_VERSION "1.0.0"

#endif
