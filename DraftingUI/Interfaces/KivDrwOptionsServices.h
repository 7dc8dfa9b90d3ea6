#pragma once

// Services for whoever starts the drafting workbench.
class KivDrwOptionsServices {
public:
    // Called when the workbench first needs its options. Fills a repository that holds nothing with every
    // default and saves it, and makes the drafting sketcher settings the framework's current ones.
    static void InitOptionsOnDisk();
};
