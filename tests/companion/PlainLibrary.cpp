// Stands for the mensuration and the sensor-models library: two exports of its own.

extern "C" __attribute__((visibility("default"))) void FirstModel() {}
extern "C" __attribute__((visibility("default"))) void SecondModel() {}
