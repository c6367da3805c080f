=
/*
**vqconfiggeneratedstub:p5*/p5(){}
p(){}f