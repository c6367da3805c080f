p2(){}
/*
**vqconfiggeneratedstub:p2
**vqconfiggeneratedstub:p1
*/#ifp2
p1()
#endif/
{ }
